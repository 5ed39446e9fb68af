#pragma once
// Stand-in written from the documentation pages of the AppKit symbols the macOS layer uses;
// not Apple's header. Core Animation's classes are only named here, as AppKit's own pages
// name them: using one needs QuartzCore.
#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSApplication, NSMenu, NSWindow, NSScreen, NSEvent, NSColor, NSImage, NSView;
@class CALayer, CAMediaTimingFunction;
@class NSFont, NSStatusItem;

typedef NS_OPTIONS(NSUInteger, NSAutoresizingMaskOptions) {
  NSViewNotSizable = 0,
  NSViewMinXMargin = 1,
  NSViewWidthSizable = 2,
  NSViewMaxXMargin = 4,
  NSViewMinYMargin = 8,
  NSViewHeightSizable = 16,
  NSViewMaxYMargin = 32,
};
typedef NS_ENUM(NSUInteger, NSFocusRingType) {
  NSFocusRingTypeDefault = 0,
  NSFocusRingTypeNone = 1,
  NSFocusRingTypeExterior = 2,
};
typedef NS_OPTIONS(NSUInteger, NSEventModifierFlags) {
  NSEventModifierFlagCapsLock = 1 << 16,
  NSEventModifierFlagShift = 1 << 17,
  NSEventModifierFlagControl = 1 << 18,
  NSEventModifierFlagOption = 1 << 19,
  NSEventModifierFlagCommand = 1 << 20,
  NSEventModifierFlagNumericPad = 1 << 21,
  NSEventModifierFlagHelp = 1 << 22,
  NSEventModifierFlagFunction = 1 << 23,
};
typedef NS_ENUM(NSUInteger, NSLineBreakMode) {
  NSLineBreakByWordWrapping = 0,
  NSLineBreakByCharWrapping = 1,
  NSLineBreakByClipping = 2,
  NSLineBreakByTruncatingHead = 3,
  NSLineBreakByTruncatingTail = 4,
  NSLineBreakByTruncatingMiddle = 5,
};

@protocol NSAnimatablePropertyContainer
- (instancetype)animator;
@end

@interface NSResponder : NSObject
- (void)mouseDown:(NSEvent*)event;
- (void)keyDown:(NSEvent*)event;
- (void)scrollWheel:(NSEvent*)event;
- (void)magnifyWithEvent:(NSEvent*)event API_AVAILABLE(macos(10.5));
- (void)cancelOperation:(nullable id)sender;
@property(readonly) BOOL acceptsFirstResponder;
@end

typedef NS_ENUM(NSInteger, NSWindowOrderingMode) {
  NSWindowAbove = 1,
  NSWindowBelow = -1,
  NSWindowOut = 0,
};

@interface NSView : NSResponder <NSAnimatablePropertyContainer>
- (instancetype)initWithFrame:(NSRect)frameRect NS_DESIGNATED_INITIALIZER;
- (void)layout;
- (void)setFrameSize:(NSSize)newSize;
@property(nullable, readonly, assign) NSWindow* window;
@property(nullable, readonly, assign) NSView* superview;
@property NSRect frame;
@property NSRect bounds;
@property BOOL wantsLayer;
@property(nullable, strong) CALayer* layer;
@property NSAutoresizingMaskOptions autoresizingMask;
@property CGFloat alphaValue;
@property(readonly) BOOL mouseDownCanMoveWindow;
- (void)addSubview:(NSView*)view;
- (void)addSubview:(NSView*)view
        positioned:(NSWindowOrderingMode)place
        relativeTo:(nullable NSView*)otherView;
@property(copy) NSArray<__kindof NSView*>* subviews;
- (void)removeFromSuperview;
- (nullable NSView*)hitTest:(NSPoint)point;
- (NSPoint)convertPoint:(NSPoint)point fromView:(nullable NSView*)view;
- (BOOL)performKeyEquivalent:(NSEvent*)event;
- (void)willOpenMenu:(NSMenu*)menu withEvent:(NSEvent*)event API_AVAILABLE(macos(10.11));
@property NSFocusRingType focusRingType;
@property(nullable, copy) NSString* toolTip;
@end

@interface NSEvent : NSObject
@property(readonly) NSInteger clickCount;
@property(readonly) NSEventModifierFlags modifierFlags;
@property(readonly) unsigned short keyCode;
@property(nullable, readonly, copy) NSString* charactersIgnoringModifiers;
@property(readonly) CGFloat deltaY;
@property(readonly) CGFloat magnification API_AVAILABLE(macos(10.5));
@end

@interface NSColor : NSObject
@property(class, strong, readonly) NSColor* clearColor;
@property(class, strong, readonly) NSColor* labelColor;
@property(class, strong, readonly) NSColor* secondaryLabelColor;
@property(class, strong, readonly) NSColor* systemRedColor;
+ (NSColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
@property(readonly) CGColorRef CGColor;
@end

@interface NSImage : NSObject
- (nullable instancetype)initWithContentsOfFile:(NSString*)fileName;
@property NSSize size;
@end

@interface NSControl : NSView
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property(copy) NSString* stringValue;
@property(nullable, strong) NSFont* font;
@property NSLineBreakMode lineBreakMode API_AVAILABLE(macos(10.10));
@end
typedef CGFloat NSFontWeight;
extern const NSFontWeight NSFontWeightSemibold API_AVAILABLE(macos(10.11));
@interface NSFont : NSObject
+ (NSFont*)systemFontOfSize:(CGFloat)fontSize;
+ (NSFont*)systemFontOfSize:(CGFloat)fontSize
                     weight:(NSFontWeight)weight API_AVAILABLE(macos(10.11));
@end
@interface NSText : NSView
@end
@interface NSTextView : NSText
@end
@protocol NSControlTextEditingDelegate <NSObject>
@optional
- (BOOL)control:(NSControl*)control
               textView:(NSTextView*)textView
    doCommandBySelector:(SEL)commandSelector;
@end
@protocol NSTextFieldDelegate <NSControlTextEditingDelegate>
@end
@interface NSTextField : NSControl
+ (instancetype)labelWithString:(NSString*)stringValue API_AVAILABLE(macos(10.12));
+ (instancetype)wrappingLabelWithString:(NSString*)stringValue API_AVAILABLE(macos(10.12));
@property(nullable, copy) NSString* placeholderString API_AVAILABLE(macos(10.10));
@property(getter=isBordered) BOOL bordered;
@property BOOL drawsBackground;
@property(nullable, copy) NSColor* textColor;
@property NSInteger maximumNumberOfLines API_AVAILABLE(macos(10.11));
@property(nullable, weak) id<NSTextFieldDelegate> delegate;
@end
typedef NS_ENUM(NSUInteger, NSBezelStyle) {
  NSBezelStyleRounded = 1,
};
@interface NSButton : NSControl
+ (instancetype)buttonWithTitle:(NSString*)title
                         target:(nullable id)target
                         action:(nullable SEL)action API_AVAILABLE(macos(10.12));
@property NSBezelStyle bezelStyle;
@property(copy) NSString* title;
@property(nullable, strong) NSImage* image;
@end
@interface NSStatusBarButton : NSButton
@end

typedef NS_ENUM(NSUInteger, NSImageScaling) {
  NSImageScaleProportionallyDown = 0,
  NSImageScaleAxesIndependently = 1,
  NSImageScaleNone = 2,
  NSImageScaleProportionallyUpOrDown = 3,
};
@interface NSImageView : NSControl
@property(nullable, strong) NSImage* image;
@property NSImageScaling imageScaling;
@end

typedef NS_ENUM(NSUInteger, NSControlSize) {
  NSControlSizeRegular = 0,
  NSControlSizeSmall = 1,
  NSControlSizeMini = 2,
};
typedef NS_ENUM(NSUInteger, NSProgressIndicatorStyle) {
  NSProgressIndicatorStyleBar = 0,
  NSProgressIndicatorStyleSpinning = 1,
};
@interface NSProgressIndicator : NSView
@property NSProgressIndicatorStyle style;
@property NSControlSize controlSize;
- (void)startAnimation:(nullable id)sender;
@end

typedef NS_ENUM(NSInteger, NSVisualEffectMaterial) {
  NSVisualEffectMaterialHUDWindow API_AVAILABLE(macos(10.14)) = 13,
};
typedef NS_ENUM(NSInteger, NSVisualEffectBlendingMode) {
  NSVisualEffectBlendingModeBehindWindow = 0,
  NSVisualEffectBlendingModeWithinWindow = 1,
};
typedef NS_ENUM(NSInteger, NSVisualEffectState) {
  NSVisualEffectStateFollowsWindowActiveState = 0,
  NSVisualEffectStateActive = 1,
  NSVisualEffectStateInactive = 2,
};
@interface NSVisualEffectView : NSView
@property NSVisualEffectMaterial material;
@property NSVisualEffectBlendingMode blendingMode;
@property NSVisualEffectState state;
@end

@interface NSAnimationContext : NSObject
+ (void)runAnimationGroup:(void (^NS_NOESCAPE)(NSAnimationContext* context))changes
        completionHandler:(nullable void (^)(void))completionHandler;
+ (void)runAnimationGroup:(void (^NS_NOESCAPE)(NSAnimationContext* context))changes
    API_AVAILABLE(macos(10.12));
@property NSTimeInterval duration;
@property(nullable, strong) CAMediaTimingFunction* timingFunction;
@end

@interface NSScreen : NSObject
@property(readonly) NSRect visibleFrame;
@end

typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
  NSWindowStyleMaskBorderless = 0,
  NSWindowStyleMaskTitled = 1 << 0,
  NSWindowStyleMaskClosable = 1 << 1,
  NSWindowStyleMaskMiniaturizable = 1 << 2,
  NSWindowStyleMaskResizable = 1 << 3,
  NSWindowStyleMaskNonactivatingPanel = 1 << 7,
  NSWindowStyleMaskFullSizeContentView = 1 << 15,
};
typedef NS_OPTIONS(NSUInteger, NSWindowCollectionBehavior) {
  NSWindowCollectionBehaviorDefault = 0,
  NSWindowCollectionBehaviorFullScreenPrimary = 1 << 7,
  NSWindowCollectionBehaviorFullScreenAuxiliary = 1 << 8,
  NSWindowCollectionBehaviorFullScreenNone = 1 << 9,
};
typedef NS_ENUM(NSUInteger, NSBackingStoreType) {
  NSBackingStoreBuffered = 2,
};
typedef NS_ENUM(NSInteger, NSWindowTitleVisibility) {
  NSWindowTitleVisible = 0,
  NSWindowTitleHidden = 1,
};
typedef NSString* NSWindowFrameAutosaveName;
typedef NSInteger NSWindowLevel;
static const NSWindowLevel NSFloatingWindowLevel = 3;
typedef NSInteger NSModalResponse;

@interface NSWindow : NSResponder <NSAnimatablePropertyContainer>
@property(class) BOOL allowsAutomaticWindowTabbing API_AVAILABLE(macos(10.12));
- (instancetype)initWithContentRect:(NSRect)contentRect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backingStoreType
                              defer:(BOOL)flag;
@property(copy) NSString* title;
@property BOOL titlebarAppearsTransparent;
@property NSWindowTitleVisibility titleVisibility;
@property(getter=isOpaque) BOOL opaque;
@property(null_resettable, copy) NSColor* backgroundColor;
@property NSSize minSize;
@property(getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@property(readonly, copy) NSWindowFrameAutosaveName frameAutosaveName;
- (BOOL)setFrameAutosaveName:(NSWindowFrameAutosaveName)name;
@property(nullable, strong) __kindof NSView* contentView;
@property(readonly) NSRect contentLayoutRect;
@property NSWindowStyleMask styleMask;
@property NSWindowCollectionBehavior collectionBehavior;
@property(readonly) NSRect frame;
@property(nullable, readonly, strong) NSScreen* screen;
@property(readonly, getter=isVisible) BOOL visible;
- (void)setContentSize:(NSSize)size;
- (void)setFrame:(NSRect)frameRect display:(BOOL)flag;
- (void)center;
- (void)makeKeyAndOrderFront:(nullable id)sender;
- (void)miniaturize:(nullable id)sender;
- (void)performClose:(nullable id)sender;
- (void)toggleFullScreen:(nullable id)sender;
- (void)performWindowDragWithEvent:(NSEvent*)event API_AVAILABLE(macos(10.11));
- (void)orderOut:(nullable id)sender;
- (BOOL)makeFirstResponder:(nullable NSResponder*)responder;
- (void)beginSheet:(NSWindow*)sheetWindow
    completionHandler:(void (^_Nullable)(NSModalResponse returnCode))handler
    API_AVAILABLE(macos(10.9));
- (void)endSheet:(NSWindow*)sheetWindow API_AVAILABLE(macos(10.9));
@property(nullable, readonly, strong) NSWindow* sheetParent API_AVAILABLE(macos(10.9));
@property(getter=isMovableByWindowBackground) BOOL movableByWindowBackground;
@property NSWindowLevel level;
@property BOOL hidesOnDeactivate;
@end
@interface NSPanel : NSWindow
@end

typedef NSString* NSUserInterfaceItemIdentifier;

@interface NSMenuItem : NSObject
- (instancetype)initWithTitle:(NSString*)string
                       action:(nullable SEL)selector
                keyEquivalent:(NSString*)charCode NS_DESIGNATED_INITIALIZER;
@property(class, readonly, strong) NSMenuItem* separatorItem;
@property(nullable, strong) NSMenu* submenu;
@property(nullable, weak) id target;
@property(nullable, strong) id representedObject;
@property(copy) NSString* title;
@property(readonly, getter=isSeparatorItem) BOOL separatorItem;
@property(nullable, copy) NSUserInterfaceItemIdentifier identifier;
@end

@interface NSMenu : NSObject
- (instancetype)initWithTitle:(NSString*)title NS_DESIGNATED_INITIALIZER;
- (void)addItem:(NSMenuItem*)newItem;
- (nullable NSMenuItem*)itemAtIndex:(NSInteger)index;
- (void)removeItemAtIndex:(NSInteger)index;
@property(readonly) NSInteger numberOfItems;
- (void)cancelTrackingWithoutAnimation API_AVAILABLE(macos(10.6));
@end
static const CGFloat NSVariableStatusItemLength = -1;
static const CGFloat NSSquareStatusItemLength = -2;
@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end
@interface NSStatusItem : NSObject
@property(nullable, readonly, strong) NSStatusBarButton* button API_AVAILABLE(macos(10.10));
@property(nullable, strong) NSMenu* menu;
@end

static const NSModalResponse NSModalResponseOK = 1;
static const NSModalResponse NSModalResponseCancel = 0;

@interface NSSavePanel : NSObject
+ (NSSavePanel*)savePanel;
@property(copy) NSString* nameFieldStringValue;
@property BOOL canCreateDirectories;
@property(nullable, readonly, copy) NSURL* URL;
- (void)beginWithCompletionHandler:(void (^)(NSModalResponse result))handler;
@end

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
- (BOOL)openURL:(NSURL*)url;
- (void)activateFileViewerSelectingURLs:(NSArray<NSURL*>*)fileURLs;
@end

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (void)applicationWillTerminate:(NSNotification*)notification;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)sender;
- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)flag;
@end

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
  NSApplicationActivationPolicyRegular = 0,
  NSApplicationActivationPolicyAccessory = 1,
  NSApplicationActivationPolicyProhibited = 2,
};

@interface NSApplication : NSResponder
@property(class, readonly, strong) __kindof NSApplication* sharedApplication;
@property(nullable, weak) id<NSApplicationDelegate> delegate;
@property(nullable, strong) NSMenu* mainMenu;
@property(nullable, strong) NSMenu* windowsMenu;
@property(nullable, readonly, weak) NSWindow* mainWindow;
@property(readonly, copy) NSArray<NSWindow*>* windows;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (void)run;
- (BOOL)sendAction:(SEL)action to:(nullable id)target from:(nullable id)sender;
- (void)activateIgnoringOtherApps:(BOOL)flag;
- (void)terminate:(nullable id)sender;
- (void)orderFrontStandardAboutPanel:(nullable id)sender;
- (void)hide:(nullable id)sender;
- (void)hideOtherApplications:(nullable id)sender;
@end

extern __kindof NSApplication* _Null_unspecified NSApp;

@interface NSPrintInfo : NSObject
@property(class, strong) NSPrintInfo* sharedPrintInfo;
@end

@interface NSPrintOperation : NSObject
@property(nullable, readonly, strong) NSView* view;
- (void)runOperationModalForWindow:(NSWindow*)docWindow
                          delegate:(nullable id)delegate
                    didRunSelector:(nullable SEL)didRunSelector
                       contextInfo:(nullable void*)contextInfo;
@end

NS_ASSUME_NONNULL_END
