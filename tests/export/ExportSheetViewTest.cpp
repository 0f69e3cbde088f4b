#include "export/ExportFixture.h"
#include "export/ExportOptionsSheet.h"
#include "theme/Theme.h"
#include "windows/ViewEngine.h"

#include <QAccessible>
#include <QDir>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlError>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <memory>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr int patience = 20000; // milliseconds

// A window of the main window's size with the sheet over it.
constexpr char scene[] = R"(
import QtQuick
import Tessarine.Export
import Tessarine.Theme

Rectangle {
    id: scene
    required property ExportOptionsSheet options
    color: Theme.colours.windowBackground
    ExportSheet {
        objectName: "sheet"
        options: scene.options
        visible: true
    }
}
)";

class ExportSheetViewTest : public ExportTest {
protected:
    ExportSheetViewTest() {
        QObject::connect(engine.get(), &QQmlEngine::warnings, engine.get(),
                         [](const QList<QQmlError>& warnings) {
                             for (const QQmlError& warning : warnings)
                                 ADD_FAILURE() << warning.toString().toStdString();
                         });
    }

    void show(int count = 42, const QSize& size = {720, 620}) {
        options = std::make_unique<ExportOptionsSheet>(
            NotificationList(std::size_t(count), notification(u"Mail"_qs, u"T"_qs, u"B"_qs)),
            [this] { ++dismissed; },
            ExportOptionsSheet::Services{manager, preferences, system.scheduler, viewer});
        QQmlComponent component(engine.get());
        component.setData(scene, QUrl(u"file:///scene.qml"_qs));
        root.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
            {{u"options"_qs, QVariant::fromValue(options.get())}})));
        ASSERT_NE(root, nullptr) << component.errorString().toStdString();
        window = std::make_unique<QQuickWindow>();
        window->resize(size);
        root->setParentItem(window->contentItem());
        root->setSize(size);
        window->show();
        window->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), patience));
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return object("sheet").property("opened").toBool(); }, patience));
    }

    QObject& object(const char* name) const {
        auto* const found = root->findChild<QObject*>(QString::fromLatin1(name));
        if (!found)
            qFatal("The scene has no %s", name);
        return *found;
    }

    // Things below the window that the sheet lies over.
    QQuickItem& item(const char* name) const {
        QQuickItem* const found = itemBelow(*window->contentItem(), QString::fromLatin1(name));
        if (!found)
            qFatal("The window shows no %s", name);
        return *found;
    }

    static QQuickItem* itemBelow(QQuickItem& top, const QString& name) {
        for (QQuickItem* const child : top.childItems()) {
            if (child->objectName() == name)
                return child;
            if (QQuickItem* const deeper = itemBelow(*child, name))
                return deeper;
        }
        return nullptr;
    }

    QString text(const char* name) const { return item(name).property("text").toString(); }

    void click(const char* name) {
        const QQuickItem& target = item(name);
        QTest::mouseClick(
            window.get(), Qt::LeftButton, {},
            target.mapToScene(QPointF(target.width() / 2, target.height() / 2)).toPoint());
    }

    // Presses the button, and asks for the path.
    void startExport() {
        click("export");
        ASSERT_TRUE(system.scheduler.runOneMainTask());
    }

    // Presses an answer of the question.
    void answer(const QString& words) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return object("confirm").property("opened").toBool(); },
                                    patience));
        QQuickItem* const button = buttonBelow(*window->contentItem(), words);
        ASSERT_NE(button, nullptr);
        QTest::mouseClick(window.get(), Qt::LeftButton, {},
                          button->mapToScene(QPointF(8, 8)).toPoint());
        ASSERT_TRUE(QTest::qWaitFor([&] { return !object("confirm").property("visible").toBool(); },
                                    patience));
    }

    static QQuickItem* buttonBelow(QQuickItem& top, const QString& words) {
        for (QQuickItem* const child : top.childItems()) {
            if (child->inherits("QQuickAbstractButton") &&
                child->property("text").toString() == words)
                return child;
            if (QQuickItem* const deeper = buttonBelow(*child, words))
                return deeper;
        }
        return nullptr;
    }

    void save(const QString& name) {
        const QImage picture = window->grabWindow();
        QDir().mkpath(QStringLiteral(PICTURES_FOLDER));
        EXPECT_TRUE(
            picture.save(QDir(QStringLiteral(PICTURES_FOLDER)).filePath(name + u".png"_qs)));
    }

    SimulatedAppearance appearance;
    std::unique_ptr<Symbols> symbols = makeSymbols();
    Theme theme{appearance};
    std::unique_ptr<QQmlEngine> engine = makeViewEngine(theme, *symbols);
    SimulatedFileViewer viewer;
    int dismissed = 0;
    std::unique_ptr<ExportOptionsSheet> options;
    std::unique_ptr<QQuickWindow> window;
    std::unique_ptr<QQuickItem> root;
};

TEST_F(ExportSheetViewTest, SaysWhatItExports) {
    show(42);
    EXPECT_EQ(text("count"), u"42 notifications"_qs);
    EXPECT_EQ(object("sheet").property("width").toReal(), 460);
    EXPECT_EQ(text("export"), u"Export as CSV"_qs);
    EXPECT_FALSE(item("privacy").isVisible());
    EXPECT_TRUE(item("plaintextWarning").isVisible());
    EXPECT_FALSE(item("error").isVisible());
    EXPECT_FALSE(item("done").isVisible());
    EXPECT_FALSE(item("spinner").isVisible());
}

TEST_F(ExportSheetViewTest, CountsASingleOneRightly) {
    show(1);
    EXPECT_EQ(text("count"), u"1 notification"_qs);
}

TEST_F(ExportSheetViewTest, CardsChooseTheFormat) {
    show();
    EXPECT_TRUE(item("card1").property("isSelected").toBool());
    click("card2");
    EXPECT_EQ(options->selectedFormat(), ExportFormat::pdf);
    EXPECT_TRUE(item("card2").property("isSelected").toBool());
    EXPECT_FALSE(item("card1").property("isSelected").toBool());
    EXPECT_EQ(text("export"), u"Export as PDF Report"_qs);
    const QString description = text("description");
    click("card0");
    EXPECT_EQ(options->selectedFormat(), ExportFormat::txt);
    EXPECT_NE(text("description"), description);
}

TEST_F(ExportSheetViewTest, CardsAreRadioButtonsToAScreenReader) {
    show();
    QAccessibleInterface* const card = QAccessible::queryAccessibleInterface(&item("card1"));
    ASSERT_NE(card, nullptr);
    EXPECT_EQ(card->role(), QAccessible::RadioButton);
    EXPECT_EQ(card->text(QAccessible::Name), u"CSV"_qs);
    EXPECT_TRUE(card->state().checked);
}

TEST_F(ExportSheetViewTest, TheKeyboardAloneIsEnough) {
    show();
    panel.answer = path(u"out"_qs);
    for (int tabs = 0; tabs < 12 && !item("card0").hasActiveFocus(); ++tabs)
        QTest::keyClick(window.get(), Qt::Key_Tab);
    ASSERT_TRUE(item("card0").hasActiveFocus());
    QTest::keyClick(window.get(), Qt::Key_Space);
    EXPECT_EQ(options->selectedFormat(), ExportFormat::txt);
    QTest::keyClick(window.get(), Qt::Key_Return); // the default action, wherever the keyboard is
    ASSERT_TRUE(system.scheduler.runOneMainTask());
    EXPECT_TRUE(options->isExporting());
}

TEST_F(ExportSheetViewTest, NothingMovesWhenItIsDone) {
    show();
    panel.answer = path(u"out"_qs);
    const QPointF before = item("export").mapToScene(QPointF());
    item("export").forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window.get(), Qt::Key_Return);
    system.scheduler.settle();
    ASSERT_TRUE(item("done").isVisible());
    EXPECT_EQ(item("export").mapToScene(QPointF()).y(), before.y());
}

TEST_F(ExportSheetViewTest, EscapeCancelsWhileAnExportRuns) {
    show();
    panel.answer = path(u"out"_qs);
    item("export").forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window.get(), Qt::Key_Return);
    ASSERT_TRUE(system.scheduler.runOneMainTask());
    ASSERT_TRUE(options->isExporting());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(dismissed, 1);
    system.scheduler.settle();
    EXPECT_TRUE(item("done").isVisible());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(dismissed, 2);
}

TEST_F(ExportSheetViewTest, TheButtonHasTheKeyboardAgainAfterTheExport) {
    show();
    panel.answer = path(u"out"_qs);
    item("export").forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window.get(), Qt::Key_Return);
    system.scheduler.settle();
    EXPECT_TRUE(item("export").hasActiveFocus());
    QTest::keyClick(window.get(), Qt::Key_Return);
    system.scheduler.settle();
    EXPECT_EQ(panel.requests.size(), 2U);
}

TEST_F(ExportSheetViewTest, AMouseThatDragsItsBodyScrollsNothing) {
    preferences.setGlobalPrivacyMode(true);
    show(3, {720, 400});
    const QQuickItem& body = item("body");
    const QPoint from = body.mapToScene(QPointF(10, body.height() - 20)).toPoint();
    QTest::mousePress(window.get(), Qt::LeftButton, {}, from);
    for (int step = 1; step <= 10; ++step)
        QTest::mouseMove(window.get(), from - QPoint(0, 8 * step));
    QTest::mouseRelease(window.get(), Qt::LeftButton, {}, from - QPoint(0, 80));
    EXPECT_EQ(body.property("contentY").toDouble(), 0);
}

TEST_F(ExportSheetViewTest, EscapeCancels) {
    show();
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(dismissed, 1);
}

TEST_F(ExportSheetViewTest, BothButtonsThatCloseDoSo) {
    show();
    click("cancel");
    EXPECT_EQ(dismissed, 1);
    click("close");
    EXPECT_EQ(dismissed, 2);
}

TEST_F(ExportSheetViewTest, ShowsAnExportFromStartToEnd) {
    show();
    panel.answer = path(u"out"_qs);
    startExport();
    EXPECT_EQ(text("export"), u"Exporting…"_qs);
    EXPECT_TRUE(item("spinner").isVisible());
    EXPECT_FALSE(item("export").isEnabled());
    system.scheduler.settle();
    EXPECT_TRUE(item("done").isVisible());
    EXPECT_FALSE(item("error").isVisible());
    EXPECT_TRUE(item("export").isEnabled());
}

TEST_F(ExportSheetViewTest, ShowsAFailureInItsWords) {
    show();
    panel.answer = path(u"gone/out"_qs);
    click("export");
    system.scheduler.settle();
    EXPECT_TRUE(item("error").isVisible());
    EXPECT_EQ(text("error"), u"Could not write CSV: No such file or directory"_qs);
    EXPECT_FALSE(item("done").isVisible());
}

TEST_F(ExportSheetViewTest, AnEmptyListCannotBeExported) {
    show(0);
    EXPECT_FALSE(item("export").isEnabled());
    QTest::keyClick(window.get(), Qt::Key_Return);
    EXPECT_TRUE(panel.requests.empty());
    EXPECT_EQ(text("count"), u"0 notifications"_qs);
}

TEST_F(ExportSheetViewTest, OffersPrivateContentInPrivacyModeOnly) {
    show();
    preferences.setGlobalPrivacyMode(true);
    EXPECT_TRUE(item("privacy").isVisible());
    EXPECT_FALSE(item("includeWarning").isVisible());
    preferences.setGlobalPrivacyMode(false);
    EXPECT_FALSE(item("privacy").isVisible());
}

TEST_F(ExportSheetViewTest, AsksBeforeItIncludesPrivateContent) {
    preferences.setGlobalPrivacyMode(true);
    show();
    click("includeSwitch");
    answer(u"Include Content"_qs);
    EXPECT_TRUE(options->includePrivateContent());
    EXPECT_TRUE(item("includeWarning").isVisible());
    click("includeSwitch");
    EXPECT_FALSE(options->includePrivateContent());
    EXPECT_FALSE(object("confirm").property("visible").toBool());
}

TEST_F(ExportSheetViewTest, KeepingItHiddenTurnsTheSwitchBackAndCanBeAskedAgain) {
    preferences.setGlobalPrivacyMode(true);
    show();
    click("includeSwitch");
    answer(u"Keep Hidden"_qs);
    EXPECT_FALSE(options->includePrivateContent());
    EXPECT_FALSE(item("includeSwitch").property("checked").toBool());
    click("includeSwitch");
    answer(u"Keep Hidden"_qs);
    EXPECT_FALSE(options->includePrivateContent());
}

TEST_F(ExportSheetViewTest, EscapeKeepsHidden) {
    preferences.setGlobalPrivacyMode(true);
    show();
    click("includeSwitch");
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return object("confirm").property("opened").toBool(); }, patience));
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(options->includePrivateContent());
    EXPECT_EQ(dismissed, 0);
}

TEST_F(ExportSheetViewTest, InALowWindowTheButtonsStayInSight) {
    preferences.setGlobalPrivacyMode(true);
    show(3, {720, 400});
    const QQuickItem& button = item("export");
    EXPECT_LE(button.mapToScene(QPointF(0, button.height())).y(), 400 - 20);
    QQuickItem& body = item("body");
    EXPECT_GT(body.property("contentHeight").toReal(), body.height());

    const QQuickItem& last = item("includeSwitch");
    for (int tabs = 0; tabs < 12 && !last.hasActiveFocus(); ++tabs)
        QTest::keyClick(window.get(), Qt::Key_Tab);
    EXPECT_TRUE(last.hasActiveFocus());
    EXPECT_LE(last.mapToItem(&body, QPointF(0, last.height())).y(), body.height());
}

// Pictures

enum class Face { Idle, Privacy, Question, Exporting, Failed, Done, Low };

constexpr const char* faceNames[] = {"idle",   "privacy", "question", "exporting",
                                     "failed", "done",    "low"};

class ExportPicturesTest : public ExportSheetViewTest,
                           public ::testing::WithParamInterface<std::tuple<Face, bool>> {};

TEST_P(ExportPicturesTest, AreDrawn) {
    const auto [face, dark] = GetParam();
    theme.applyAppearance(dark ? u"dark"_qs : u"light"_qs);
    preferences.setGlobalPrivacyMode(face == Face::Privacy || face == Face::Question ||
                                     face == Face::Low);
    show(42, face == Face::Low ? QSize(720, 400) : QSize(720, 620));
    if (face == Face::Privacy || face == Face::Question) {
        click("includeSwitch");
        ASSERT_TRUE(QTest::qWaitFor([&] { return object("confirm").property("opened").toBool(); },
                                    patience));
    }
    if (face == Face::Privacy)
        answer(u"Include Content"_qs);
    panel.answer = face == Face::Failed ? path(u"gone/out"_qs) : path(u"out"_qs);
    if (face == Face::Exporting || face == Face::Failed || face == Face::Done)
        startExport();
    if (face == Face::Failed || face == Face::Done)
        system.scheduler.settle();
    QTest::mouseMove(window.get(), QPoint(2, 2));
    save(u"export-%1-%2@%3x"_qs
             .arg(QLatin1String(faceNames[std::size_t(face)]), dark ? u"dark"_qs : u"light"_qs)
             .arg(window->effectiveDevicePixelRatio()));
}

INSTANTIATE_TEST_SUITE_P(Each, ExportPicturesTest,
                         ::testing::Combine(::testing::Values(Face::Idle, Face::Privacy,
                                                              Face::Question, Face::Exporting,
                                                              Face::Failed, Face::Done, Face::Low),
                                            ::testing::Bool()),
                         [](const auto& test) {
                             return std::string(faceNames[std::size_t(std::get<0>(test.param))]) +
                                    (std::get<1>(test.param) ? "Dark" : "Light");
                         });

} // namespace
} // namespace tessarine::testing
