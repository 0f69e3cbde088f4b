#pragma once

#include "capture/NotificationListener.h"
#include "support/HoardFile.h"
#include "support/SimulatedPlatform.h"
#include "support/SystemDatabases.h"
#include "support/SystemPayloads.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace tessarine::testing {

using namespace Qt::StringLiterals;

// A listener over the simulated platform, and a database of the daemon's that a test writes to.
class ListenerFixture : public ::testing::Test {
protected:
    ListenerFixture()
        : system_(folder_.path()) {
        EXPECT_TRUE(writer_.createTables()) << writer_.lastError().toStdString();
    }

    HoardStore& hoard() {
        if (!hoard_)
            hoard_.emplace(system_.fileSystem, system_.defaults, system_.scheduler);
        return *hoard_;
    }

    // The services as a new process would make them.
    void launch() {
        preferences_.emplace(system_.defaults);
        diagnostics_.emplace(system_.scheduler, hoard());
        listener_ =
            NotificationListener::create({hoard(), *preferences_, *diagnostics_, system_.platform});
    }

    void launchAndStart() {
        launch();
        listener_->start();
        system_.scheduler.settle();
    }

    void relaunch() {
        listener_.reset();
        diagnostics_.reset();
        preferences_.reset();
        hoard_.reset();
        launchAndStart();
    }

    void add(qint64 recId, const QString& title, double date,
             const QString& application = u"com.example.mail"_qs) {
        const auto payload =
            testing::usernotedPayload(testing::UsernotedForm::RequestTitle, {.title = title});
        ASSERT_TRUE(writer_.append(recId, *writer_.appId(application), payload, date))
            << writer_.lastError().toStdString();
    }

    void addUnreadable(qint64 recId, double date) {
        ASSERT_TRUE(writer_.append(
            recId, 1, testing::usernotedPayload(testing::UsernotedForm::Broken, {}), date));
    }

    void pollNow() {
        listener_->pollUsernoted();
        system_.scheduler.settle();
    }

    std::vector<QString> stored(const QString& column = u"title"_qs) {
        std::vector<QString> texts;
        const DatabaseFile file(hoard().path());
        for (const QStringList& row :
             file.rows(u"SELECT %1 FROM notifications ORDER BY id"_qs.arg(column)))
            texts.push_back(row.front());
        return texts;
    }

    // Oldest first.
    std::vector<QString> logged() {
        std::vector<QString> messages;
        for (const DiagnosticEntry& entry : diagnostics_->entries())
            messages.insert(messages.begin(), entry.message);
        return messages;
    }

    QTemporaryDir folder_;
    SimulatedPlatform system_;
    testing::UsernotedWriter writer_{
        folder_.filePath(u"Library/Group Containers/group.com.apple.usernoted/db2/db"_qs)};
    std::optional<HoardStore> hoard_;
    std::optional<PreferencesStore> preferences_;
    std::optional<DiagnosticsStore> diagnostics_;
    std::shared_ptr<NotificationListener> listener_;
};

} // namespace tessarine::testing
