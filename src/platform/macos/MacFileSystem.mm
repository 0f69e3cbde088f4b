#include "platform/macos/MacFileSystem.h"

#include <QFile>

#import <Foundation/Foundation.h>
#include <sys/stat.h>

namespace tessarine {

QStringList MacFileSystem::applicationSupportDirectories() const {
    @autoreleasepool {
        QStringList folders;
        for (NSURL* url in
             [NSFileManager.defaultManager URLsForDirectory:NSApplicationSupportDirectory
                                                  inDomains:NSUserDomainMask]) {
            if (NSString* const path = url.path)
                folders << QString::fromNSString(path);
        }
        return folders;
    }
}

QString MacFileSystem::expandingTilde(const QString& path) const {
    @autoreleasepool {
        return QString::fromNSString(path.toNSString().stringByExpandingTildeInPath);
    }
}

QString MacFileSystem::abbreviatingWithTilde(const QString& path) const {
    @autoreleasepool {
        const QString home = QString::fromNSString(NSHomeDirectory());
        return path.startsWith(home + u'/') ? u'~' + path.sliced(home.size()) : path;
    }
}

bool MacFileSystem::grantsReading(const QString& path) const {
    @autoreleasepool {
        return [NSFileManager.defaultManager isReadableFileAtPath:path.toNSString()];
    }
}

bool MacFileSystem::makePrivate(const QString& path) const {
    @autoreleasepool {
        return chmod(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR) == 0;
    }
}

} // namespace tessarine
