// What Tessarine calls of Foundation, declared anew and compared with public records. What macOS 10.10
// had carries no mark; what came later tells when.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CoreGraphics.h>
#import <objc/NSObject.h>
#include <objc/runtime.h>

#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define NS_NOESCAPE __attribute__((noescape))
#define NS_UNAVAILABLE UNAVAILABLE_ATTRIBUTE
#define NS_REQUIRES_NIL_TERMINATION __attribute__((sentinel(0, 1)))
#define NS_RETURNS_INNER_POINTER __attribute__((objc_returns_inner_pointer))
#define NS_ENUM(type, name) CF_ENUM(type, name)
#define NS_OPTIONS(type, name) CF_OPTIONS(type, name)

typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;
typedef double NSTimeInterval;
typedef unsigned short unichar;

static inline NSSize NSMakeSize(CGFloat width, CGFloat height)
{
    return CGSizeMake(width, height);
}

static inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height)
{
    return CGRectMake(x, y, width, height);
}

NS_ASSUME_NONNULL_BEGIN

typedef struct _NSRange {
    NSUInteger location;
    NSUInteger length;
} NSRange;

@class NSArray<__covariant ObjectType>, NSDictionary<__covariant KeyType, __covariant ObjectType>;
@class NSBundle, NSData, NSDate, NSError, NSLocale, NSNotification, NSOperationQueue, NSString, NSURL;

@protocol NSCopying
@end

@protocol NSMutableCopying
@end

// The compiler writes the loops over collections by these names.
typedef struct {
    unsigned long state;
    id __unsafe_unretained _Nullable* _Nullable itemsPtr;
    unsigned long* _Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)len;
@end

// --- Values -------------------------------------------------------------------------------------

@interface NSString : NSObject <NSCopying, NSMutableCopying>
@property (readonly) NSUInteger length;
@property (nullable, readonly) const char* UTF8String NS_RETURNS_INNER_POINTER;
@property (readonly, copy) NSString* stringByExpandingTildeInPath;
@property (readonly, copy) NSString* stringByDeletingPathExtension;
@property (readonly, copy) NSString* lastPathComponent;
@property (readonly, copy) NSString* pathExtension;
- (unichar)characterAtIndex:(NSUInteger)index;
- (void)getCharacters:(unichar*)buffer range:(NSRange)range;
- (BOOL)isEqualToString:(NSString*)aString;
- (BOOL)hasPrefix:(NSString*)str;
- (BOOL)hasSuffix:(NSString*)str;
- (NSString*)stringByAppendingString:(NSString*)aString;
- (NSString*)stringByAppendingPathComponent:(NSString*)str;
+ (instancetype)string;
+ (nullable instancetype)stringWithUTF8String:(const char*)nullTerminatedCString;
+ (instancetype)stringWithCharacters:(const unichar*)characters length:(NSUInteger)length;
@end

@interface NSValue : NSObject <NSCopying>
@property (readonly) const char* objCType NS_RETURNS_INNER_POINTER;
@end

@interface NSNumber : NSValue
@property (readonly) BOOL boolValue;
@property (readonly) int intValue;
@property (readonly) long long longLongValue;
@property (readonly) double doubleValue;
@property (readonly) NSInteger integerValue;
@property (readonly) NSUInteger unsignedIntegerValue;
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithInt:(int)value;
+ (NSNumber*)numberWithUnsignedInt:(unsigned int)value;
+ (NSNumber*)numberWithLong:(long)value;
+ (NSNumber*)numberWithUnsignedLong:(unsigned long)value;
+ (NSNumber*)numberWithLongLong:(long long)value;
+ (NSNumber*)numberWithUnsignedLongLong:(unsigned long long)value;
+ (NSNumber*)numberWithFloat:(float)value;
+ (NSNumber*)numberWithDouble:(double)value;
+ (NSNumber*)numberWithInteger:(NSInteger)value;
+ (NSNumber*)numberWithUnsignedInteger:(NSUInteger)value;
@end

@interface NSData : NSObject <NSCopying>
@property (readonly) NSUInteger length;
@property (readonly) const void* bytes NS_RETURNS_INNER_POINTER;
+ (instancetype)dataWithBytes:(nullable const void*)bytes length:(NSUInteger)length;
@end

@interface NSDate : NSObject <NSCopying>
@property (readonly) NSTimeInterval timeIntervalSinceReferenceDate;
@property (readonly) NSTimeInterval timeIntervalSince1970;
+ (instancetype)date;
+ (instancetype)dateWithTimeIntervalSinceReferenceDate:(NSTimeInterval)ti;
+ (instancetype)dateWithTimeIntervalSince1970:(NSTimeInterval)secs;
@end

@interface NSArray<__covariant ObjectType> : NSObject <NSCopying, NSMutableCopying, NSFastEnumeration>
@property (readonly) NSUInteger count;
@property (nullable, nonatomic, readonly) ObjectType firstObject;
@property (nullable, nonatomic, readonly) ObjectType lastObject;
- (ObjectType)objectAtIndex:(NSUInteger)index;
- (ObjectType)objectAtIndexedSubscript:(NSUInteger)idx;
- (BOOL)containsObject:(ObjectType)anObject;
+ (instancetype)array;
+ (instancetype)arrayWithObject:(ObjectType)anObject;
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nonnull])objects count:(NSUInteger)cnt;
@end

@interface NSMutableArray<ObjectType> : NSArray<ObjectType>
- (void)addObject:(ObjectType)anObject;
+ (instancetype)arrayWithCapacity:(NSUInteger)numItems;
@end

@interface NSDictionary<__covariant KeyType, __covariant ObjectType> : NSObject <NSCopying, NSMutableCopying, NSFastEnumeration>
@property (readonly) NSUInteger count;
@property (readonly, copy) NSArray<KeyType>* allKeys;
- (nullable ObjectType)objectForKey:(KeyType)aKey;
- (nullable ObjectType)objectForKeyedSubscript:(KeyType)key;
+ (instancetype)dictionary;
+ (instancetype)dictionaryWithObject:(ObjectType)object forKey:(KeyType<NSCopying>)key;
+ (instancetype)dictionaryWithObjects:(const ObjectType _Nonnull[_Nullable])objects
                              forKeys:(const KeyType<NSCopying> _Nonnull[_Nullable])keys
                                count:(NSUInteger)cnt;
@end

@interface NSSet<__covariant ObjectType> : NSObject <NSCopying, NSMutableCopying, NSFastEnumeration>
@property (readonly) NSUInteger count;
@property (readonly, copy) NSArray<ObjectType>* allObjects;
@end

@interface NSURL : NSObject <NSCopying>
@property (nullable, readonly, copy) NSString* absoluteString;
@property (nullable, readonly, copy) NSString* scheme;
@property (nullable, readonly, copy) NSString* path;
@property (readonly, getter=isFileURL) BOOL fileURL;
+ (NSURL*)fileURLWithPath:(NSString*)path;
+ (NSURL*)fileURLWithPath:(NSString*)path isDirectory:(BOOL)isDir;
+ (nullable instancetype)URLWithString:(NSString*)URLString;
+ (nullable instancetype)URLWithString:(NSString*)URLString
             encodingInvalidCharacters:(BOOL)encodingInvalidCharacters API_AVAILABLE(macos(14.0));
@end

@interface NSError : NSObject <NSCopying>
@property (readonly, copy) NSString* domain;
@property (readonly) NSInteger code;
@property (readonly, copy) NSString* localizedDescription;
@end

// --- Notifications and observation --------------------------------------------------------------

typedef NSString* NSNotificationName;
typedef NSString* NSKeyValueChangeKey;

@interface NSNotification : NSObject <NSCopying>
@property (readonly, copy) NSNotificationName name;
@property (nullable, readonly, strong) id object;
@property (nullable, readonly, copy) NSDictionary* userInfo;
@end

@interface NSOperationQueue : NSObject
@property (class, readonly, strong) NSOperationQueue* mainQueue;
@end

@interface NSNotificationCenter : NSObject
@property (class, readonly, strong) NSNotificationCenter* defaultCenter;
- (void)addObserver:(id)observer
           selector:(SEL)aSelector
               name:(nullable NSNotificationName)aName
             object:(nullable id)anObject;
- (void)removeObserver:(id)observer;
- (void)removeObserver:(id)observer
                  name:(nullable NSNotificationName)aName
                object:(nullable id)anObject;
- (id<NSObject>)addObserverForName:(nullable NSNotificationName)name
                            object:(nullable id)obj
                             queue:(nullable NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification* notification))block;
@end

typedef NS_OPTIONS(NSUInteger, NSKeyValueObservingOptions) {
    NSKeyValueObservingOptionNew = 0x01,
    NSKeyValueObservingOptionOld = 0x02,
    NSKeyValueObservingOptionInitial = 0x04,
    NSKeyValueObservingOptionPrior = 0x08
};

typedef NS_ENUM(NSUInteger, NSKeyValueChange) {
    NSKeyValueChangeSetting = 1,
    NSKeyValueChangeInsertion = 2,
    NSKeyValueChangeRemoval = 3,
    NSKeyValueChangeReplacement = 4
};

CF_EXPORT NSKeyValueChangeKey const NSKeyValueChangeKindKey;
CF_EXPORT NSKeyValueChangeKey const NSKeyValueChangeNewKey;
CF_EXPORT NSKeyValueChangeKey const NSKeyValueChangeOldKey;

@interface NSObject (NSKeyValueObserving)
- (void)observeValueForKeyPath:(nullable NSString*)keyPath
                      ofObject:(nullable id)object
                        change:(nullable NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(nullable void*)context;
@end

@interface NSObject (NSKeyValueObserverRegistration)
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(nullable void*)context;
- (void)removeObserver:(NSObject*)observer
            forKeyPath:(NSString*)keyPath
               context:(nullable void*)context;
@end

CF_EXPORT NSString* NSStringFromSelector(SEL aSelector);

// --- The program and the system -----------------------------------------------------------------

@interface NSThread : NSObject
@property (class, readonly) BOOL isMainThread;
@end

@interface NSBundle : NSObject
@property (class, readonly, strong) NSBundle* mainBundle;
@property (readonly, copy) NSString* bundlePath;
@property (nullable, readonly, copy) NSString* bundleIdentifier;
@property (nullable, readonly, copy) NSDictionary<NSString*, id>* infoDictionary;
- (nullable id)objectForInfoDictionaryKey:(NSString*)key;
+ (nullable instancetype)bundleWithPath:(NSString*)path;
@end

typedef NS_OPTIONS(uint64_t, NSActivityOptions) {
    NSActivityIdleDisplaySleepDisabled = (1ULL << 40),
    NSActivityIdleSystemSleepDisabled = (1ULL << 20),
    NSActivityBackground = 0x000000FFULL,
    NSActivityUserInitiated = (0x00FFFFFFULL | NSActivityIdleSystemSleepDisabled),
    NSActivityUserInitiatedAllowingIdleSystemSleep = (NSActivityUserInitiated & ~NSActivityIdleSystemSleepDisabled)
};

typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo : NSObject
@property (class, readonly, strong) NSProcessInfo* processInfo;
@property (readonly, copy) NSString* operatingSystemVersionString;
@property (readonly) NSOperatingSystemVersion operatingSystemVersion;
@property (readonly) int processIdentifier;
@property (readonly, copy) NSString* processName;
- (id<NSObject>)beginActivityWithOptions:(NSActivityOptions)options reason:(NSString*)reason;
- (void)endActivity:(id<NSObject>)activity;
- (void)disableSuddenTermination;
- (void)disableAutomaticTermination:(NSString*)reason;
@end

typedef NS_ENUM(NSUInteger, NSSearchPathDirectory) {
    NSApplicationDirectory = 1,
    NSLibraryDirectory = 5,
    NSDesktopDirectory = 12,
    NSCachesDirectory = 13,
    NSApplicationSupportDirectory = 14,
    NSDownloadsDirectory = 15
};

typedef NS_OPTIONS(NSUInteger, NSSearchPathDomainMask) {
    NSUserDomainMask = 1,
    NSLocalDomainMask = 2
};

@interface NSFileManager : NSObject
@property (class, readonly, strong) NSFileManager* defaultManager;
@property (readonly, copy) NSURL* homeDirectoryForCurrentUser API_AVAILABLE(macos(10.12));
- (NSArray<NSURL*>*)URLsForDirectory:(NSSearchPathDirectory)directory
                           inDomains:(NSSearchPathDomainMask)domainMask;
- (BOOL)fileExistsAtPath:(NSString*)path;
- (BOOL)isReadableFileAtPath:(NSString*)path;
- (NSString*)displayNameAtPath:(NSString*)path;
@end

CF_EXPORT NSString* NSHomeDirectory(void);

@interface NSUserDefaults : NSObject
@property (class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (nullable id)objectForKey:(NSString*)defaultName;
- (void)setObject:(nullable id)value forKey:(NSString*)defaultName;
- (void)removeObjectForKey:(NSString*)defaultName;
- (nullable NSString*)stringForKey:(NSString*)defaultName;
- (nullable NSArray*)arrayForKey:(NSString*)defaultName;
- (BOOL)boolForKey:(NSString*)defaultName;
- (NSInteger)integerForKey:(NSString*)defaultName;
- (double)doubleForKey:(NSString*)defaultName;
- (NSDictionary<NSString*, id>*)dictionaryRepresentation;
- (void)registerDefaults:(NSDictionary<NSString*, id>*)registrationDictionary;
- (BOOL)synchronize;
@end

// --- Dates and languages in the user's style ----------------------------------------------------

@interface NSLocale : NSObject <NSCopying>
@property (class, readonly, copy) NSLocale* currentLocale;
@property (class, readonly, copy) NSLocale* autoupdatingCurrentLocale;
@property (class, readonly, copy) NSArray<NSString*>* preferredLanguages;
@property (readonly, copy) NSString* localeIdentifier;
@end

CF_EXPORT NSNotificationName const NSCurrentLocaleDidChangeNotification;

@interface NSTimeZone : NSObject <NSCopying>
@property (class, readonly, copy) NSTimeZone* localTimeZone;
@property (readonly, copy) NSString* name;
+ (nullable instancetype)timeZoneWithName:(NSString*)tzName;
+ (instancetype)timeZoneForSecondsFromGMT:(NSInteger)seconds;
@end

typedef NS_ENUM(NSUInteger, NSDateFormatterStyle) {
    NSDateFormatterNoStyle = 0,
    NSDateFormatterShortStyle = 1,
    NSDateFormatterMediumStyle = 2,
    NSDateFormatterLongStyle = 3,
    NSDateFormatterFullStyle = 4
};

@interface NSFormatter : NSObject <NSCopying>
@end

@interface NSDateFormatter : NSFormatter
@property NSDateFormatterStyle dateStyle;
@property NSDateFormatterStyle timeStyle;
@property (null_resettable, copy) NSLocale* locale;
@property (null_resettable, copy) NSTimeZone* timeZone;
@property (null_resettable, copy) NSString* dateFormat;
- (NSString*)stringFromDate:(NSDate*)date;
- (void)setLocalizedDateFormatFromTemplate:(NSString*)dateFormatTemplate;
+ (nullable NSString*)dateFormatFromTemplate:(NSString*)tmplate
                                     options:(NSUInteger)opts
                                      locale:(nullable NSLocale*)locale;
@end

NS_ASSUME_NONNULL_END
