#pragma once
// Stand-in written from the documentation pages of the Core Animation symbols the macOS layer
// uses; not Apple's header.
#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@interface CAMediaTimingFunction : NSObject
// clang-format off
+ (instancetype)functionWithControlPoints:(float)c1x :(float)c1y :(float)c2x :(float)c2y;
// clang-format on
@end

@interface CALayer : NSObject
@property(nullable) CGColorRef backgroundColor;
@property CGFloat cornerRadius;
@property BOOL masksToBounds;
@end

NS_ASSUME_NONNULL_END
