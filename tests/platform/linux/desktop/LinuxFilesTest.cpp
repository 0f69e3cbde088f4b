#include "platform/linux/bus/QtBus.h"
#include "platform/linux/desktop/LinuxFileViewer.h"
#include "platform/linux/desktop/LinuxSavePanel.h"
#include "support/Printers.h"
#include "support/SimulatedDesktop.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include <gtest/gtest.h>

#include <functional>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

constexpr int patience = 20000; // milliseconds

// The file manager

class FakeFileManager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    explicit FakeFileManager(QDBusConnection bus) {
        bus.registerObject(u"/org/freedesktop/FileManager1"_qs, this,
                           QDBusConnection::ExportAllSlots);
        bus.registerService(u"org.freedesktop.FileManager1"_qs);
    }

    QStringList shown;

public Q_SLOTS:
    void ShowItems(const QStringList& uris, const QString&) { shown += uris; }
};

// Stands in for what opens folders.
class FolderOpener : public QObject {
    Q_OBJECT

public:
    FolderOpener() { QDesktopServices::setUrlHandler(u"file"_qs, this, "open"); }
    ~FolderOpener() override { QDesktopServices::unsetUrlHandler(u"file"_qs); }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened += url; }
};

class FileViewerTest : public ::testing::Test {
protected:
    testing::QtBus bus_;
    FolderOpener opener_;
};

TEST_F(FileViewerTest, TheFileManagerOfTheSessionSelectsTheFile) {
    FakeFileManager manager(bus_.connection(u"manager"_qs));
    LinuxFileViewer viewer(bus_.connection(u"program"_qs));
    viewer.reveal(u"/home/anna/My files/ü#1.csv"_qs);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !manager.shown.isEmpty(); }, patience));
    EXPECT_EQ(manager.shown, QStringList(u"file:///home/anna/My%20files/%C3%BC%231.csv"_qs));
    EXPECT_TRUE(opener_.opened.isEmpty());
}

TEST_F(FileViewerTest, WithoutOneTheFolderIsOpened) {
    LinuxFileViewer viewer(bus_.connection(u"program"_qs));
    viewer.reveal(u"/home/anna/My files/out.csv"_qs);
    EXPECT_TRUE(opener_.opened.isEmpty()); // nobody has waited for the answer
    EXPECT_TRUE(QTest::qWaitFor([&] { return !opener_.opened.isEmpty(); }, patience));
    EXPECT_EQ(opener_.opened, QList<QUrl>{QUrl::fromLocalFile(u"/home/anna/My files"_qs)});
}

TEST_F(FileViewerTest, WithoutABusTheFolderIsOpened) {
    LinuxFileViewer viewer{QDBusConnection(u"none"_qs)};
    viewer.reveal(u"/home/anna/out.csv"_qs);
    EXPECT_EQ(opener_.opened, QList<QUrl>{QUrl::fromLocalFile(u"/home/anna"_qs)});
}

// The dialog

class SavePanelTest : public ::testing::Test {
protected:
    SavePanelTest() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    // Runs the panel while a user does this with its dialog.
    std::optional<QString> run(const std::function<void(QFileDialog&)>& user) {
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            watch.stop();
            user(*dialog);
        });
        watch.start(5);
        return panel_.runModal(request_);
    }

    // What it gives for a name that the user types.
    std::optional<QString> answerFor(const QString& name) {
        return run([&](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>(u"fileNameEdit"_qs)->setText(path(name));
            dialog.findChild<QDialogButtonBox*>()->buttons().value(0)->click();
        });
    }

    QString path(const QString& name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
    testing::SimulatedAppearance appearance_;
    LinuxSavePanel panel_{appearance_, QDBusConnection(QStringLiteral("no bus"))};
    SavePanel::Request request_{u"Tessarine_2026-03-03.csv"_qs, u"Export CSV"_qs, u"Export"_qs};
};

TEST_F(SavePanelTest, ShowsWhatItWasAsked) {
    run([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Export CSV"_qs);
        EXPECT_EQ(dialog.labelText(QFileDialog::Accept), u"Export"_qs);
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.selectedFiles().value(0).section(u'/', -1),
                  u"Tessarine_2026-03-03.csv"_qs);
        EXPECT_TRUE(dialog.defaultSuffix().isEmpty());
        EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_FALSE(dialog.testOption(QFileDialog::ReadOnly)); // folders can be made
        dialog.reject();
    });
}

TEST_F(SavePanelTest, GivesThePathThatTheUserChose) {
    const QString wanted = path(u"any name at all"_qs);
    EXPECT_EQ(run([&](QFileDialog& dialog) {
                  dialog.setDirectory(folder_.path());
                  dialog.findChild<QLineEdit*>(u"fileNameEdit"_qs)->setText(wanted);
                  dialog.findChild<QDialogButtonBox*>()->buttons().value(0)->click();
              }),
              wanted);
}

TEST_F(SavePanelTest, GivesANameWithoutAnExtensionTheOneThatIsAskedFor) {
    request_.extension = u"db"_qs;
    EXPECT_EQ(answerFor(u"backup"_qs), path(u"backup.db"_qs));
    EXPECT_EQ(answerFor(u"backup.db"_qs), path(u"backup.db"_qs));
    EXPECT_EQ(answerFor(u"backup.old"_qs), path(u"backup.old"_qs));
}

TEST_F(SavePanelTest, GivesNothingWhenTheUserCancels) {
    EXPECT_EQ(run([](QFileDialog& dialog) { dialog.reject(); }), std::nullopt);
}

TEST_F(SavePanelTest, StartsWhereAFileWasSavedLast) {
    const QString wanted = path(u"first"_qs);
    run([&](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>(u"fileNameEdit"_qs)->setText(wanted);
        dialog.findChild<QDialogButtonBox*>()->buttons().value(0)->click();
    });
    run([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().canonicalPath(), QDir(folder_.path()).canonicalPath());
        dialog.reject();
    });
}

TEST_F(SavePanelTest, StandsInFrontOfTheWindowThatAsks) {
    QWindow window;
    window.show();
    window.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window, patience));
    run([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowHandle()->transientParent(), &window);
        EXPECT_TRUE(dialog.isModal());
        dialog.reject();
    });
}

TEST_F(SavePanelTest, IsAsDarkAsTheProgram) {
    appearance_.setDesktopIsDark(true);
    run([](QFileDialog& dialog) {
        EXPECT_LT(dialog.palette().color(QPalette::Window).lightness(), 128);
        dialog.reject();
    });
}

} // namespace
} // namespace tessarine

#include "LinuxFilesTest.moc"
