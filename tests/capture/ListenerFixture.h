#pragma once

#include "capture/CaptureFixture.h"
#include "support/SystemDatabases.h"
#include "support/SystemPayloads.h"

#include <vector>

namespace tessarine::testing {

using namespace Qt::StringLiterals;

// A listener over the simulated platform, and a database of the daemon's that a test writes to.
class ListenerFixture : public CaptureFixture {
protected:
    ListenerFixture() { EXPECT_TRUE(writer_.createTables()) << writer_.lastError().toStdString(); }

    // The services as a new process would make them.
    void launch() { makeServices(); }

    void launchAndStart() {
        launch();
        listener_->start();
        system_.scheduler.settle();
    }

    void relaunch() {
        endProcess();
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

    // Oldest first.
    std::vector<QString> logged() {
        std::vector<QString> messages;
        for (const DiagnosticEntry& entry : diagnostics_->entries())
            messages.insert(messages.begin(), entry.message);
        return messages;
    }

    testing::UsernotedWriter writer_{
        folder_.filePath(u"Library/Group Containers/group.com.apple.usernoted/db2/db"_qs)};
};

} // namespace tessarine::testing
