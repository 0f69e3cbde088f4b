#pragma once

#include "core/DelegateFixture.h"
#include "settings/PrefTab.h"

#include <QQuickWindow>
#include <QString>
#include <QUuid>

#include <vector>

class QQuickItem;

namespace tessarine {
class DiagnosticsView;
class HelpView;
enum class HelpSection;
} // namespace tessarine

namespace tessarine::testing {

// The program in front of a user who brings its windows into their states. Motion is reduced, so
// that each state is there at once.
class WindowStage : public DelegateFixture {
public:
    WindowStage();

    // The window that was opened last, drawn.
    QQuickWindow& shown();

    // For the scenes

    ContentView& browser() { return delegate->mainWindow()->content(); }
    QUuid firstRow() { return services->listener->notifications().front().id; }
    PreferencesView& preferences() { return delegate->preferencesWindow()->view(); }
    PreferencesStore& settings() { return services->preferences; }
    DiagnosticsView& diagnostics();
    HelpView& help();
    SimulatedPlatform& platform() { return system; }
    void refuseEveryPath() {
        desktop.savePanel.answer = folder.filePath(QStringLiteral("no/such/folder/file"));
    }

    void click(const QString& name, Qt::MouseButton button = Qt::LeftButton);
    void openMenuOf(const QString& name); // of a row of settings
    void clickFirstRow(Qt::MouseButton button);
    void scrollToTheEnd(const QString& name);
    void resize(int width, int height);

    void storeRows();
    void openBrowser(); // with some rows
    void openEmptyBrowser() { delegate->showMainWindow(); }
    void openTab(PrefTab tab);
    void openExcludedApps();
    void openDiagnostics(); // with some lines
    void openHelp(HelpSection section);
    void openGuide(OnboardingFlow::Guide guide, int step);
    void openPrivacyNotice() { delegate->onboardingFlow().showPrivacyNotice(); }
    void openFullDiskAccess();
    void openLoginPrompt();
    void openUpdateNotice() { delegate->checkForUpdates(); }

private:
    QQuickItem& item(const QString& name);
    void clickOn(QQuickItem& item, Qt::MouseButton button);
    void store(const QString& app, const QString& title, const QString& body);

    qint64 lastNoteId_ = 0;
};

// A state of a window.
struct WindowScene {
    const char* name;
    void (*bringAbout)(WindowStage&);
};

void PrintTo(const WindowScene& scene, std::ostream* out);

const std::vector<WindowScene>& windowScenes();

} // namespace tessarine::testing
