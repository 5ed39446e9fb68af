#pragma once
// Stand-in written from the documentation pages of the WebKit symbols the macOS layer uses;
// not Apple's header.
#import <AppKit/AppKit.h>
#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class WKWebView, WKWebViewConfiguration, WKUserContentController;

@interface WKNavigation : NSObject
@end

@interface WKWindowFeatures : NSObject
@end

@interface WKSecurityOrigin : NSObject
@property(readonly, copy) NSString* host API_AVAILABLE(macos(10.11));
@end

@interface WKFrameInfo : NSObject
@property(readonly, getter=isMainFrame) BOOL mainFrame;
@property(readonly) WKSecurityOrigin* securityOrigin API_AVAILABLE(macos(10.11));
@end

typedef NS_ENUM(NSInteger, WKNavigationType) {
  WKNavigationTypeLinkActivated = 0,
  WKNavigationTypeFormSubmitted = 1,
  WKNavigationTypeBackForward = 2,
  WKNavigationTypeReload = 3,
  WKNavigationTypeFormResubmitted = 4,
  WKNavigationTypeOther = -1,
};

@interface WKNavigationAction : NSObject
@property(readonly, copy) NSURLRequest* request;
@property(readonly) BOOL shouldPerformDownload API_AVAILABLE(macos(11.3));
@property(nullable, readonly, copy) WKFrameInfo* targetFrame;
@property(readonly) WKNavigationType navigationType;
@end

typedef NS_ENUM(NSInteger, WKNavigationActionPolicy) {
  WKNavigationActionPolicyCancel = 0,
  WKNavigationActionPolicyAllow = 1,
  WKNavigationActionPolicyDownload API_AVAILABLE(macos(11.3)) = 2,
};

typedef NS_ENUM(NSInteger, WKNavigationResponsePolicy) {
  WKNavigationResponsePolicyCancel = 0,
  WKNavigationResponsePolicyAllow = 1,
  WKNavigationResponsePolicyDownload API_AVAILABLE(macos(11.3)) = 2,
};

@interface WKNavigationResponse : NSObject
@property(readonly, getter=isForMainFrame) BOOL forMainFrame;
@property(readonly, copy) NSURLResponse* response;
@property(readonly) BOOL canShowMIMEType;
@end

@class WKDownload;

API_AVAILABLE(macos(11.3))
@protocol WKDownloadDelegate <NSObject>
@required
- (void)download:(WKDownload*)download
    decideDestinationUsingResponse:(NSURLResponse*)response
                 suggestedFilename:(NSString*)suggestedFilename
                 completionHandler:(void (^)(NSURL* _Nullable destination))completionHandler;
@optional
- (void)downloadDidFinish:(WKDownload*)download;
- (void)download:(WKDownload*)download
    didFailWithError:(NSError*)error
          resumeData:(nullable NSData*)resumeData;
@end

API_AVAILABLE(macos(11.3))
@interface WKDownload : NSObject <NSProgressReporting>
@property(nullable, readonly) NSURLRequest* originalRequest;
@property(nullable, weak) id<WKDownloadDelegate> delegate;
- (void)cancel:(void (^_Nullable)(NSData* _Nullable resumeData))completionHandler;
@end

@interface WKScriptMessage : NSObject
@property(readonly, copy) id body;
@property(readonly, copy) NSString* name;
@property(readonly) WKFrameInfo* frameInfo;
@end

@protocol WKScriptMessageHandler <NSObject>
@required
- (void)userContentController:(WKUserContentController*)userContentController
      didReceiveScriptMessage:(WKScriptMessage*)message;
@end

typedef NS_ENUM(NSInteger, WKUserScriptInjectionTime) {
  WKUserScriptInjectionTimeAtDocumentStart = 0,
  WKUserScriptInjectionTimeAtDocumentEnd = 1,
};
@interface WKUserScript : NSObject
- (instancetype)initWithSource:(NSString*)source
                 injectionTime:(WKUserScriptInjectionTime)injectionTime
              forMainFrameOnly:(BOOL)forMainFrameOnly;
@end

@interface WKUserContentController : NSObject
- (void)addUserScript:(WKUserScript*)userScript;
- (void)addScriptMessageHandler:(id<WKScriptMessageHandler>)scriptMessageHandler
                           name:(NSString*)name;
@end

@interface WKWebViewConfiguration : NSObject
@property(nullable, copy) NSString* applicationNameForUserAgent;
@property(strong) WKUserContentController* userContentController;
@end

@protocol WKNavigationDelegate <NSObject>
@optional
- (void)webView:(WKWebView*)webView
    decidePolicyForNavigationAction:(WKNavigationAction*)navigationAction
                    decisionHandler:(void (^)(WKNavigationActionPolicy))decisionHandler;
- (void)webView:(WKWebView*)webView
    decidePolicyForNavigationResponse:(WKNavigationResponse*)navigationResponse
                      decisionHandler:(void (^)(WKNavigationResponsePolicy))decisionHandler;
- (void)webView:(WKWebView*)webView
     navigationAction:(WKNavigationAction*)navigationAction
    didBecomeDownload:(WKDownload*)download API_AVAILABLE(macos(11.3));
- (void)webView:(WKWebView*)webView
    navigationResponse:(WKNavigationResponse*)navigationResponse
     didBecomeDownload:(WKDownload*)download API_AVAILABLE(macos(11.3));
- (void)webView:(WKWebView*)webView didCommitNavigation:(null_unspecified WKNavigation*)navigation;
- (void)webView:(WKWebView*)webView didFinishNavigation:(null_unspecified WKNavigation*)navigation;
- (void)webView:(WKWebView*)webView
    didFailNavigation:(null_unspecified WKNavigation*)navigation
            withError:(NSError*)error;
- (void)webView:(WKWebView*)webView
    didFailProvisionalNavigation:(null_unspecified WKNavigation*)navigation
                       withError:(NSError*)error;
@end

typedef NS_ENUM(NSInteger, WKMediaCaptureType) {
  WKMediaCaptureTypeCamera = 0,
  WKMediaCaptureTypeMicrophone = 1,
  WKMediaCaptureTypeCameraAndMicrophone = 2,
} API_AVAILABLE(macos(12.0));

typedef NS_ENUM(NSInteger, WKPermissionDecision) {
  WKPermissionDecisionPrompt = 0,
  WKPermissionDecisionGrant = 1,
  WKPermissionDecisionDeny = 2,
} API_AVAILABLE(macos(12.0));

@protocol WKUIDelegate <NSObject>
@optional
- (nullable WKWebView*)webView:(WKWebView*)webView
    createWebViewWithConfiguration:(WKWebViewConfiguration*)configuration
               forNavigationAction:(WKNavigationAction*)navigationAction
                    windowFeatures:(WKWindowFeatures*)windowFeatures;
- (void)webView:(WKWebView*)webView
    requestMediaCapturePermissionForOrigin:(WKSecurityOrigin*)origin
                          initiatedByFrame:(WKFrameInfo*)frame
                                      type:(WKMediaCaptureType)type
                           decisionHandler:(void (^)(WKPermissionDecision decision))decisionHandler
    API_AVAILABLE(macos(12.0));
@end

@class WKFrameInfo;

API_AVAILABLE(macos(11.0))
@interface WKContentWorld : NSObject
@property(class, readonly) WKContentWorld* pageWorld;
@end

@interface WKWebView : NSView
- (instancetype)initWithFrame:(CGRect)frame
                configuration:(WKWebViewConfiguration*)configuration NS_DESIGNATED_INITIALIZER;
@property(nullable, weak) id<WKNavigationDelegate> navigationDelegate;
@property(nullable, weak) id<WKUIDelegate> UIDelegate;
@property(nullable, readonly, copy) NSURL* URL;
@property(null_resettable, copy) NSColor* underPageBackgroundColor API_AVAILABLE(macos(12.0));
@property(nonatomic) CGFloat pageZoom API_AVAILABLE(macos(11.0));
- (NSPrintOperation*)printOperationWithPrintInfo:(NSPrintInfo*)printInfo API_AVAILABLE(macos(11.0));
- (nullable WKNavigation*)loadRequest:(NSURLRequest*)request;
- (nullable WKNavigation*)loadHTMLString:(NSString*)string baseURL:(nullable NSURL*)baseURL;
- (nullable WKNavigation*)reload;
- (void)evaluateJavaScript:(NSString*)javaScriptString
         completionHandler:
             (void (^_Nullable)(_Nullable id, NSError* _Nullable error))completionHandler;
- (void)callAsyncJavaScript:(NSString*)functionBody
                  arguments:(nullable NSDictionary<NSString*, id>*)arguments
                    inFrame:(nullable WKFrameInfo*)frame
             inContentWorld:(WKContentWorld*)contentWorld
          completionHandler:
              (void (^_Nullable)(_Nullable id result, NSError* _Nullable error))completionHandler
    API_AVAILABLE(macos(11.0));
@end

NS_ASSUME_NONNULL_END
