#pragma once

#include "platform/Platform.h"
#include "platform/qt/StoredValue.h"
#include "support/ManualScheduler.h"
#include "support/SimulatedAccessibility.h"

#include <QString>
#include <QVariant>

#include <map>
#include <mutex>
#include <set>
#include <vector>

namespace tessarine::testing {

// User defaults in memory, which read like those in a file. Tests may put in what no setter would.
class SimulatedDefaults : public UserDefaults {
public:
    bool contains(const QString& key) const override { return values.contains(key); }
    bool boolean(const QString& key) const override { return booleanOf(value(key)); }
    qint64 integer(const QString& key) const override { return integerOf(value(key)); }
    double real(const QString& key) const override { return numberOf(value(key)); }
    std::optional<QString> text(const QString& key) const override { return textOf(value(key)); }
    QStringList textList(const QString& key) const override { return textListOf(value(key)); }
    std::vector<qint64> integerList(const QString& key) const override {
        return integerListOf(value(key));
    }

    void setBoolean(const QString& key, bool value) override { values[key] = value; }
    void setInteger(const QString& key, qint64 value) override { values[key] = value; }
    void setReal(const QString& key, double value) override { values[key] = value; }
    void setText(const QString& key, const QString& value) override { values[key] = value; }
    void setTextList(const QString& key, const QStringList& value) override { values[key] = value; }
    void setIntegerList(const QString& key, const std::vector<qint64>& value) override {
        values[key] = storedForm(value);
    }
    bool hasUnsavedValues() const override { return cannotBeWritten; }

    std::map<QString, QVariant> values;
    bool cannotBeWritten = false;

private:
    QVariant value(const QString& key) const;
};

// A file system whose home is a folder of the test's own.
class SimulatedFileSystem : public FileSystem {
public:
    explicit SimulatedFileSystem(QString home)
        : home_(std::move(home)) {}

    QStringList applicationSupportDirectories() const override;
    QString expandingTilde(const QString& path) const override;
    QString abbreviatingWithTilde(const QString& path) const override;
    bool grantsReading(const QString& path) const override;
    bool makePrivate(const QString& path) const override;

    const QString& home() const { return home_; }

private:
    QString home_;
};

// Watches that fire when the test says so.
class SimulatedFileWatcher : public FileWatcher {
public:
    explicit SimulatedFileWatcher(Scheduler& scheduler)
        : scheduler_(scheduler) {}

    std::unique_ptr<FileWatch> watchWrites(const QString& path, Task handler) override;

    // A write to the file at the path. Nothing happens where nobody watches.
    void write(const QString& path);

    std::size_t watches(const QString& path) const { return handlers_.count(path); }

private:
    class Watch;

    Scheduler& scheduler_;
    std::multimap<QString, std::shared_ptr<Task>> handlers_;
};

class SimulatedWorkspace : public Workspace {
public:
    std::vector<RunningApplication>
    runningApplications(const QString& bundleIdentifier) const override;
    std::optional<QString> pathForApplication(const QString& bundleIdentifier) const override;
    std::optional<QString> applicationInFolder(const QString& folder,
                                               const QString& name) const override;
    void openApplication(const QString& path) override { openedApplications << path; }
    void openURL(const QString& url) override { openedURLs << url; }
    std::unique_ptr<WorkspaceObservation> observe(WorkspaceEvent event, Handler handler) override;

    // Tells the observers of an event.
    void post(WorkspaceEvent event, const std::optional<RunningApplication>& application = {});

    std::size_t observers() const { return handlers_.size(); }

    std::vector<RunningApplication> running;
    std::map<QString, QString> installed; // paths by bundle identifier
    std::set<QString> bundles;            // paths of what lies in the folders
    mutable QStringList askedPaths;       // of bundles, in the order of the questions
    QStringList openedApplications;
    QStringList openedURLs;

private:
    class Observation;

    mutable std::mutex mutex_;
    std::multimap<WorkspaceEvent, std::shared_ptr<Handler>> handlers_;
};

// A login item that the test switches, and that fails if the test says so.
class SimulatedLoginItem : public LoginItem {
public:
    LoginItemStatus status() const override { return current; }
    Failure registerMainApp() override { return change(LoginItemStatus::enabled); }
    Failure unregisterMainApp() override { return change(LoginItemStatus::notRegistered); }

    LoginItemStatus current = LoginItemStatus::notRegistered;
    Failure nextFailure;

private:
    Failure change(LoginItemStatus wanted) {
        if (!nextFailure)
            current = wanted;
        return nextFailure;
    }
};

// A system that has the pages that the test says.
class SimulatedSystemSettings : public SystemSettings {
public:
    bool offers(const QString& page) const override { return pages.contains(page); }
    bool listsPrograms() const override { return hasLists; }
    bool open(const QString& page) override {
        opened << page;
        return canStart && pages.contains(page);
    }

    std::set<QString> pages{settingsPages::accessibility, settingsPages::fullDiskAccess};
    bool hasLists = true;
    bool canStart = true;
    QStringList opened;
};

// A system and a program of the test's own making.
class SimulatedSystemFacts : public SystemFacts {
public:
    QString programVersion() const override { return version; }
    QString programBuild() const override { return build; }
    QString systemLabel() const override { return label; }
    QString systemVersion() const override { return system; }

    QString version = QStringLiteral("1.2.3");
    QString build = QStringLiteral("45");
    QString label = QStringLiteral("System");
    QString system = QStringLiteral("Example 6.7 (Linux 8.9)");
};

// The whole simulated platform, with its parts at hand for the test.
struct SimulatedPlatform {
    explicit SimulatedPlatform(const QString& home);

    Platform platform;
    SimulatedDefaults& defaults;
    SimulatedFileSystem& fileSystem;
    ManualScheduler& scheduler;
    SimulatedFileWatcher& fileWatcher;
    SimulatedWorkspace& workspace;
    SimulatedAccessibility& accessibility;
    SimulatedLoginItem& loginItem;
    SimulatedSystemSettings& systemSettings;
    SimulatedSystemFacts& systemFacts;
};

} // namespace tessarine::testing
