// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// AppKit: the parts that Selvane uses, with the names, types and nullability in its documentation.

#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@class NSApplication, NSMenu, NSRunningApplication, NSWindow, UTType;

// ---- Applications and the workspace

#define IBAction void

typedef NS_OPTIONS(NSUInteger, NSApplicationActivationOptions) {
    NSApplicationActivateAllWindows = 1 << 0,
};

@interface NSRunningApplication : NSObject
@property(readonly, getter=isTerminated) BOOL terminated;
@property(readonly, getter=isActive) BOOL active;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(readonly) int processIdentifier;
@property(class, readonly, strong) NSRunningApplication* currentApplication;
+ (NSArray<NSRunningApplication*>*)runningApplicationsWithBundleIdentifier:(NSString*)bundleIdentifier;
+ (nullable instancetype)runningApplicationWithProcessIdentifier:(int)pid;
- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options;
- (BOOL)terminate;
- (BOOL)forceTerminate;
@end

@interface NSWorkspaceOpenConfiguration : NSObject <NSCopying>
+ (instancetype)configuration;
@property BOOL activates;
@property BOOL createsNewApplicationInstance;
@property(copy) NSArray<NSString*>* arguments;
@property(copy) NSDictionary<NSString*, NSString*>* environment;
@end

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
@property(readonly, strong) NSNotificationCenter* notificationCenter;
@property(readonly) BOOL accessibilityDisplayShouldReduceMotion;
- (nullable NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier;
- (void)openApplicationAtURL:(NSURL*)applicationURL
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(nullable void (^)(NSRunningApplication* _Nullable app,
                                                NSError* _Nullable error))completionHandler;
- (void)activateFileViewerSelectingURLs:(NSArray<NSURL*>*)fileURLs;
@end

extern "C" NSString* const NSWorkspaceApplicationKey;
extern "C" NSNotificationName const NSWorkspaceDidLaunchApplicationNotification;
extern "C" NSNotificationName const NSWorkspaceDidTerminateApplicationNotification;
extern "C" NSNotificationName const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification;

@interface NSResponder : NSObject
@end

@interface NSApplication : NSResponder
@property(class, readonly, strong) __kindof NSApplication* sharedApplication;
@property(nullable, strong) NSMenu* mainMenu;
@property(nullable, strong) NSMenu* windowsMenu;
@property(nullable, strong) NSMenu* servicesMenu;
- (void)activate;
- (void)yieldActivationToApplication:(NSRunningApplication*)application;
- (IBAction)hide:(nullable id)sender;
- (IBAction)hideOtherApplications:(nullable id)sender;
- (IBAction)unhideAllApplications:(nullable id)sender;
- (IBAction)terminate:(nullable id)sender;
- (IBAction)arrangeInFront:(nullable id)sender;
- (IBAction)orderFrontStandardAboutPanel:(nullable id)sender;
@end

extern "C" __kindof NSApplication* _Null_unspecified NSApp;

// ---- Windows and panels

@interface NSWindow : NSResponder
- (IBAction)performClose:(nullable id)sender;
- (IBAction)performMiniaturize:(nullable id)sender;
- (IBAction)performZoom:(nullable id)sender;
@end

@interface NSView : NSResponder
@property(nullable, readonly, assign) NSWindow* window;
@end

typedef NSInteger NSModalResponse;
extern "C" NSModalResponse const NSModalResponseOK;
extern "C" NSModalResponse const NSModalResponseCancel;

@interface NSPanel : NSWindow
@end

@interface NSSavePanel : NSPanel
+ (NSSavePanel*)savePanel;
@property(nullable, readonly, copy) NSURL* URL;
@property(nullable, copy) NSURL* directoryURL;
@property(copy) NSArray<UTType*>* allowedContentTypes;
@property(copy) NSString* nameFieldStringValue;
@property(null_resettable, copy) NSString* message;
@property BOOL canCreateDirectories;
- (void)beginSheetModalForWindow:(NSWindow*)window
               completionHandler:(void (^)(NSModalResponse result))handler;
- (void)beginWithCompletionHandler:(void (^)(NSModalResponse result))handler;
- (IBAction)cancel:(nullable id)sender;
@end

@interface NSOpenPanel : NSSavePanel
+ (NSOpenPanel*)openPanel;
@end

// ---- Menus

typedef NS_OPTIONS(NSUInteger, NSEventModifierFlags) {
    NSEventModifierFlagShift = 1 << 17,
    NSEventModifierFlagControl = 1 << 18,
    NSEventModifierFlagOption = 1 << 19,
    NSEventModifierFlagCommand = 1 << 20,
};

@interface NSMenuItem : NSObject <NSCopying>
+ (NSMenuItem*)separatorItem;
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property NSEventModifierFlags keyEquivalentModifierMask;
@property NSInteger tag;
@property(nullable, strong) NSMenu* submenu;
@end

@protocol NSMenuItemValidation <NSObject>
- (BOOL)validateMenuItem:(NSMenuItem*)menuItem;
@end

@interface NSMenu : NSObject <NSCopying>
- (instancetype)initWithTitle:(NSString*)title;
- (NSMenuItem*)addItemWithTitle:(NSString*)title action:(nullable SEL)selector keyEquivalent:(NSString*)key;
- (void)addItem:(NSMenuItem*)item;
@property(copy) NSArray<NSMenuItem*>* itemArray;
@end

// ---- Drawing

typedef CGFloat NSFontWeight;
extern "C" const NSFontWeight NSFontWeightLight;
extern "C" const NSFontWeight NSFontWeightRegular;
extern "C" const NSFontWeight NSFontWeightBold;

typedef NS_ENUM(NSInteger, NSImageSymbolScale) {
    NSImageSymbolScaleSmall = 1,
    NSImageSymbolScaleMedium = 2,
    NSImageSymbolScaleLarge = 3,
};

@interface NSImageSymbolConfiguration : NSObject <NSCopying>
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize
                                    weight:(NSFontWeight)weight
                                     scale:(NSImageSymbolScale)scale;
@end

@interface NSImage : NSObject <NSCopying>
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description;
- (nullable NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration;
@property NSSize size;
- (void)drawInRect:(NSRect)rect;
@end

@interface NSGraphicsContext : NSObject
@property(class, nullable, strong) NSGraphicsContext* currentContext;
+ (NSGraphicsContext*)graphicsContextWithCGContext:(CGContextRef)context flipped:(BOOL)isFlipped;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
@end

#pragma clang assume_nonnull end
