// What Tessarine calls of UniformTypeIdentifiers, declared anew and compared with public records.
#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(11.0))
@interface UTType : NSObject <NSCopying>
+ (nullable instancetype)typeWithIdentifier:(NSString*)identifier;
+ (nullable instancetype)typeWithFilenameExtension:(NSString*)filenameExtension;
@property (readonly) NSString* identifier;
@end

CF_EXPORT UTType* const UTTypeApplication API_AVAILABLE(macos(11.0));
CF_EXPORT UTType* const UTTypeApplicationBundle API_AVAILABLE(macos(11.0));

NS_ASSUME_NONNULL_END
