#include "shared/CapturedNotification.h"

namespace tessarine {

bool showsSameRow(const CapturedNotification& left, const CapturedNotification& right) {
    return left.dbId == right.dbId && left.noteId == right.noteId && left.pinned == right.pinned &&
           left.timestamp == right.timestamp && left.title == right.title &&
           left.body == right.body && left.appName == right.appName &&
           left.appBundleId == right.appBundleId;
}

} // namespace tessarine
