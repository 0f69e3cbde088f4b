#include "capture/LegacyDecoding.h"

#include "capture/RecordDecoding.h"

namespace tessarine {

namespace {

// The notification itself is the second object of its archive.
constexpr qsizetype notificationIndex = 1;

} // namespace

std::optional<LegacyTexts> decodeLegacyPayload(QByteArrayView payload) {
    const std::optional<PropertyList> list = PropertyList::parse(payload);
    const auto objects = list ? archiveObjects(list->root()) : std::nullopt;
    const auto notification = objects ? objects->at(notificationIndex) : std::nullopt;
    if (!notification || notification->type() != PropertyList::Type::dictionary)
        return std::nullopt;
    LegacyTexts texts;
    texts.title = archiveString(notification->find(u"NSTitle"), *objects).value_or(QString());
    texts.body =
        archiveString(notification->find(u"NSInformativetext"), *objects).value_or(QString());
    texts.date = archiveDate(notification->find(u"NSActualdeliverydate"), *objects);
    if (texts.title.isEmpty() && texts.body.isEmpty())
        return std::nullopt;
    return texts;
}

} // namespace tessarine
