#pragma once

#include "help/HelpSection.h"
#include "help/IPhoneWalkthrough.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace tessarine {

// The built-in manual: which of its sections is shown, and what is looked for in all of them. One
// for each window. Main thread.
class HelpView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Who opens the window makes it")
    Q_PROPERTY(QList<tessarine::HelpSectionEntry> sections READ sections CONSTANT)
    Q_PROPERTY(QList<tessarine::HelpSectionEntry> shownSections READ shownSections NOTIFY
                   shownSectionsChanged)
    Q_PROPERTY(
        int selectedIndex READ selectedIndex WRITE setSelectedIndex NOTIFY selectedSectionChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(bool searching READ isSearching NOTIFY shownSectionsChanged)
    Q_PROPERTY(tessarine::IPhoneWalkthrough* walkthrough READ walkthrough CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QString agreementText READ agreementText CONSTANT)
    Q_PROPERTY(bool canShowPrivacyNotice READ canShowPrivacyNotice CONSTANT)

public:
    struct Services {
        Scheduler& scheduler;                    // outlives the view
        QString agreementText;                   // empty: there is none to review
        std::function<void()> showPrivacyNotice; // may be empty
    };

    explicit HelpView(Services services);

    const QList<HelpSectionEntry>& sections() const { return sections_; }

    HelpSection selectedSection() const { return selectedSection_; }
    void setSelectedSection(HelpSection section); // and ends the search
    int selectedIndex() const { return int(selectedSection_); }
    void setSelectedIndex(int index); // one that isn't there changes nothing

    // The selected section; all of them while something is looked for, each then shows what it has
    // of it.
    QList<HelpSectionEntry> shownSections() const;
    const QString& searchText() const { return searchText_; }
    void setSearchText(const QString& text);
    bool isSearching() const { return !searchText_.trimmed().isEmpty(); }

    // Empties the search. False when there was none.
    Q_INVOKABLE bool endSearch();

    IPhoneWalkthrough* walkthrough() { return &walkthrough_; }
    QString version() const;
    const QString& agreementText() const { return services_.agreementText; }
    bool canShowPrivacyNotice() const { return bool(services_.showPrivacyNotice); }
    Q_INVOKABLE void showPrivacyNotice() const;

Q_SIGNALS:
    void selectedSectionChanged();
    void shownSectionsChanged();
    void searchTextChanged();

private:
    void changePages();

    Services services_;
    const QList<HelpSectionEntry> sections_;
    HelpSection selectedSection_ = HelpSection::howItWorks;
    QString searchText_;
    IPhoneWalkthrough walkthrough_;
};

} // namespace tessarine
