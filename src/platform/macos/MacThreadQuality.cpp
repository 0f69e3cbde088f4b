#include "platform/ThreadQuality.h"

#include <pthread.h>
#include <pthread/qos.h>

namespace tessarine {

namespace {

qos_class_t systemQuality(QualityOfService quality) {
    switch (quality) {
    case QualityOfService::background:
        return QOS_CLASS_BACKGROUND;
    case QualityOfService::utility:
        return QOS_CLASS_UTILITY;
    case QualityOfService::userInitiated:
        break;
    }
    return QOS_CLASS_USER_INITIATED;
}

} // namespace

void setThreadQuality(QualityOfService quality) {
    pthread_set_qos_class_self_np(systemQuality(quality), 0);
}

} // namespace tessarine
