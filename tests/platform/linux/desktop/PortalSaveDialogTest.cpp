#include "platform/linux/bus/QtBus.h"
#include "platform/linux/desktop/LinuxSavePanel.h"
#include "support/Printers.h"
#include "support/SimulatedDesktop.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// A portal that answers with what the test's user does. Its reply to the call comes first.
class FakeFilePortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

public:
    explicit FakeFilePortal(const QDBusConnection& bus)
        : bus_(bus) {
        bus_.registerObject(u"/org/freedesktop/portal/desktop"_qs, this,
                            QDBusConnection::ExportAllSlots);
        bus_.registerService(u"org.freedesktop.portal.Desktop"_qs);
    }

    struct Answer {
        uint response = 0;
        QStringList uris = {};
    };

    std::function<Answer()> user;
    QList<QVariantMap> asked;
    QStringList titles;
    bool leavesInstead = false;

public Q_SLOTS:
    QDBusObjectPath SaveFile(const QString&, const QString& title, const QVariantMap& options,
                             const QDBusMessage& call) {
        asked += options;
        titles += title;
        const QString path = u"/org/freedesktop/portal/desktop/request/"_qs +
                             call.service().mid(1).replace(u'.', u'_') + u'/' +
                             options.value(u"handle_token"_qs).toString();
        QTimer::singleShot(0, this,
                           [this, path, client = call.service()] { answer(path, client); });
        return QDBusObjectPath(path);
    }

private:
    void answer(const QString& path, const QString& client) {
        if (leavesInstead) {
            bus_.unregisterService(u"org.freedesktop.portal.Desktop"_qs);
            return;
        }
        const Answer given = user();
        QDBusMessage signal = QDBusMessage::createTargetedSignal(
            client, path, u"org.freedesktop.portal.Request"_qs, u"Response"_qs);
        signal << given.response << QVariantMap{{u"uris"_qs, given.uris}};
        bus_.send(signal);
    }

    QDBusConnection bus_;
};

class PortalSaveDialogTest : public ::testing::Test {
protected:
    QString path(const QString& name) const { return folder_.filePath(name); }
    FakeFilePortal::Answer choice(const QString& name) const {
        return {0, {QUrl::fromLocalFile(path(name)).toString()}};
    }

    // Cancels the dialog of Qt's that comes when no portal can ask, and tells whether it came.
    bool comesToQt() {
        bool came = false;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            came = true;
            watch.stop();
            dialog->reject();
        });
        watch.start(5);
        EXPECT_EQ(panel_.runModal(request_), std::nullopt);
        return came;
    }

    testing::QtBus bus_;
    QTemporaryDir folder_;
    testing::SimulatedAppearance appearance_;
    FakeFilePortal portal_{bus_.connection(u"portal"_qs)};
    LinuxSavePanel panel_{appearance_, bus_.connection(u"program"_qs)};
    SavePanel::Request request_{u"List.csv"_qs, u"Export CSV"_qs, u"Export"_qs, u"csv"_qs};
};

TEST_F(PortalSaveDialogTest, ThePortalIsToldWhatToAskAndItsAnswerIsTaken) {
    portal_.user = [&] { return choice(u"My list ü.csv"_qs); };
    EXPECT_EQ(panel_.runModal(request_), path(u"My list ü.csv"_qs));
    EXPECT_EQ(portal_.titles, QStringList(u"Export CSV"_qs));
    const QVariantMap options = portal_.asked.value(0);
    EXPECT_EQ(options.value(u"current_name"_qs), u"List.csv"_qs);
    EXPECT_EQ(options.value(u"accept_label"_qs), u"Export"_qs);
    EXPECT_EQ(options.value(u"modal"_qs), true);
    EXPECT_TRUE(options.value(u"current_folder"_qs).toByteArray().endsWith('\0'));
}

TEST_F(PortalSaveDialogTest, TheNextOneBeginsWhereAFileWasSavedLast) {
    portal_.user = [&] { return choice(u"a.csv"_qs); };
    panel_.runModal(request_);
    panel_.runModal(request_);
    EXPECT_EQ(portal_.asked.value(1).value(u"current_folder"_qs).toByteArray(),
              QFile::encodeName(folder_.path()) + '\0');
    EXPECT_NE(portal_.asked.value(0).value(u"handle_token"_qs),
              portal_.asked.value(1).value(u"handle_token"_qs));
}

TEST_F(PortalSaveDialogTest, AUserWhoCancelsIsAskedNoFurther) {
    for (const uint response : {1U, 2U}) { // by the button, and by the window's frame
        portal_.user = [&] { return FakeFilePortal::Answer{response}; };
        EXPECT_EQ(panel_.runModal(request_), std::nullopt);
    }
    EXPECT_EQ(portal_.asked.size(), 2);
}

TEST_F(PortalSaveDialogTest, ANameWithoutAnExtensionGetsIt) {
    portal_.user = [&] { return choice(u"list"_qs); };
    EXPECT_EQ(panel_.runModal(request_), path(u"list.csv"_qs));
}

TEST_F(PortalSaveDialogTest, AFileThatThePortalHasNotAskedAboutIsShownToTheUserFirst) {
    QFile file(path(u"list.csv"_qs));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    portal_.user = [&] {
        return portal_.asked.size() == 1 ? choice(u"list"_qs) : choice(u"list.csv"_qs);
    };
    EXPECT_EQ(panel_.runModal(request_), path(u"list.csv"_qs));
    ASSERT_EQ(portal_.asked.size(), 2);
    EXPECT_EQ(portal_.asked.value(1).value(u"current_name"_qs), u"list.csv"_qs);
}

TEST_F(PortalSaveDialogTest, WindowsTakeNoInputWhileItIsOpen) {
    bool isBlocked = false;
    portal_.user = [&] {
        isBlocked = QApplication::activeModalWidget() != nullptr;
        return choice(u"a.csv"_qs);
    };
    panel_.runModal(request_);
    EXPECT_TRUE(isBlocked);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(PortalSaveDialogTest, APortalThatLeavesGivesTheQuestionToQt) {
    portal_.leavesInstead = true;
    EXPECT_TRUE(comesToQt());
}

TEST_F(PortalSaveDialogTest, AnAddressThatIsNoFileGivesTheQuestionToQt) {
    portal_.user = [] { return FakeFilePortal::Answer{0, {u"sftp://host/list.csv"_qs}}; };
    EXPECT_TRUE(comesToQt());
}

// Somebody else on the bus answers in the portal's place, with a file of their choice.
TEST_F(PortalSaveDialogTest, OnlyThePortalIsBelieved) {
    QDBusConnection stranger = bus_.connection(u"stranger"_qs);
    portal_.user = [&] {
        const QDBusConnection program(u"program"_qs);
        const QString token = portal_.asked.value(0).value(u"handle_token"_qs).toString();
        QDBusMessage signal = QDBusMessage::createTargetedSignal(
            program.baseService(),
            u"/org/freedesktop/portal/desktop/request/"_qs +
                program.baseService().mid(1).replace(u'.', u'_') + u'/' + token,
            u"org.freedesktop.portal.Request"_qs, u"Response"_qs);
        signal << 0U << QVariantMap{{u"uris"_qs, QStringList(u"file:///etc/passwd"_qs)}};
        stranger.send(signal);
        // The bus has passed it on once it has answered this.
        stranger.call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_qs, u"/"_qs,
                                                     u"org.freedesktop.DBus"_qs, u"GetId"_qs));
        return choice(u"mine.csv"_qs);
    };
    EXPECT_EQ(panel_.runModal(request_), path(u"mine.csv"_qs));
}

} // namespace
} // namespace tessarine

#include "PortalSaveDialogTest.moc"
