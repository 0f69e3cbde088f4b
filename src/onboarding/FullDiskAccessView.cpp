#include "onboarding/FullDiskAccessView.h"

#include <utility>

namespace tessarine {

FullDiskAccessView::FullDiskAccessView(Services services, std::function<void()> onEnabled,
                                       std::function<void()> onSkip)
    : services_(std::move(services))
    , onEnabled_(std::move(onEnabled))
    , onSkip_(std::move(onSkip))
    , timer_(services_.scheduler.every(pollInterval, [this] { poll(); })) {}

bool FullDiskAccessView::offersSettings() const {
    return services_.settings.offers(settingsPages::fullDiskAccess);
}

bool FullDiskAccessView::showsPicture() const {
    return services_.settings.listsPrograms();
}

bool FullDiskAccessView::isGranted() const {
    return services_.fileSystem.grantsReading(services_.fdaPath);
}

void FullDiskAccessView::appear() {
    if (isGranted())
        autoClose();
}

void FullDiskAccessView::poll() {
    if (pollCount_ >= pollLimit || didAutoClose_)
        return;
    ++pollCount_;
    if (isGranted())
        autoClose();
}

void FullDiskAccessView::claimEnabled() {
    if (isGranted()) {
        autoClose();
        return;
    }
    showNotActiveWarning_ = true;
    Q_EMIT changed();
}

void FullDiskAccessView::skip() {
    if (!didAutoClose_)
        onSkip_();
}

void FullDiskAccessView::openSettings() {
    services_.settings.open(settingsPages::fullDiskAccess);
}

// A tick and a click may both see the access in the same instant.
void FullDiskAccessView::autoClose() {
    if (std::exchange(didAutoClose_, true))
        return;
    showNotActiveWarning_ = false;
    Q_EMIT changed();
    onEnabled_();
}

} // namespace tessarine
