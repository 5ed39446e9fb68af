#pragma once
// Stand-in: Cocoa is the umbrella of Foundation and AppKit.
#import <AppKit/AppKit.h>
#import <Foundation/Foundation.h>
