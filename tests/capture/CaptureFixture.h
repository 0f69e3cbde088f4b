#pragma once

#include "core/Services.h"
#include "support/HoardFile.h"
#include "support/SimulatedPlatform.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

namespace tessarine::testing {

// The program's services over the simulated platform, as one process after the other makes them.
class CaptureFixture : public ::testing::Test {
protected:
    static constexpr double start = ManualScheduler::startOfTime;

    CaptureFixture()
        : system_(folder_.path()) {}

    // A new process. Nothing is started.
    void makeServices() {
        endProcess();
        services_.emplace(system_.platform);
        listener_ = std::move(services_->listener); // tests may let it go
        preferences_ = &services_->preferences;
        diagnostics_ = &services_->diagnostics;
        QObject::connect(listener_.get(), &NotificationListener::notificationsChanged,
                         listener_.get(), [this] { ++published_; });
    }

    void endProcess() {
        listener_.reset();
        services_.reset();
    }

    // The process's own.
    HoardStore& hoard() {
        if (!services_)
            makeServices();
        return services_->hoard;
    }

    // The texts of a column, in the order in which they were stored.
    std::vector<QString> stored(const QString& column = QStringLiteral("title")) {
        std::vector<QString> texts;
        const DatabaseFile file(hoard().path());
        for (const QStringList& row :
             file.rows(QStringLiteral("SELECT %1 FROM notifications ORDER BY id").arg(column)))
            texts.push_back(row.front());
        return texts;
    }

    QTemporaryDir folder_;
    SimulatedPlatform system_;
    std::optional<Services> services_;
    PreferencesStore* preferences_ = nullptr; // of the services, as the next two
    DiagnosticsStore* diagnostics_ = nullptr;
    std::shared_ptr<NotificationListener> listener_;
    int published_ = 0;
};

} // namespace tessarine::testing
