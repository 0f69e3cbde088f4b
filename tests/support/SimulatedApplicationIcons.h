#pragma once

#include "platform/ApplicationIcons.h"
#include "platform/Symbols.h"

#include <map>
#include <mutex>
#include <vector>

namespace tessarine::testing {

// A square of one colour.
inline QImage square(int pixels, const QColor& colour) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

// Icons that the test lays down; without any, a grey generic one.
class SimulatedApplicationIcons : public ApplicationIcons {
public:
    QImage iconForFile(const QString& path) const override {
        {
            const std::lock_guard lock(mutex_); // lookups come from several threads
            askedPaths.push_back(path);
        }
        const auto found = files.find(path);
        return found == files.end() ? QImage() : found->second;
    }
    QImage iconForRunningApplication(const RunningApplication& application) const override {
        const auto found = running.find(application.pid);
        return found == running.end() ? QImage() : found->second;
    }
    QImage genericApplicationIcon() const override { return generic; }

    std::map<QString, QImage> files;
    std::map<qint32, QImage> running; // by process
    QImage generic = square(64, Qt::gray);
    mutable std::vector<QString> askedPaths;

private:
    mutable std::mutex mutex_;
};

// Symbols that are squares in their tint, but for those that the test takes away.
class SimulatedSymbols : public Symbols {
public:
    QImage image(const QString& name, int pixels, const QColor& tint) const override {
        return known.contains(name) ? square(pixels, tint) : QImage();
    }
    QStringList names() const override { return known; }

    QStringList known{QStringLiteral("gearshape.fill")};
};

} // namespace tessarine::testing
