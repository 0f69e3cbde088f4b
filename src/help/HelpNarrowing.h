#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Hides on a page of the help what doesn't hold the words that are looked for. Each item of the
// page says in its property `words` what it holds; one without is there for the whole page alone. A
// heading (`leads`) stays with what is found below it, and what is below a heading that holds the
// words stays with that. Letters count alike in upper and lower case. Main thread.
class HelpNarrowing : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* page READ page WRITE setPage NOTIFY pageChanged)
    Q_PROPERTY(QString soughtText READ soughtText WRITE setSoughtText NOTIFY soughtTextChanged)
    Q_PROPERTY(bool found READ isFound NOTIFY foundChanged)

public:
    QQuickItem* page() const { return page_; }
    void setPage(QQuickItem* page);
    const QString& soughtText() const { return soughtText_; }
    void setSoughtText(const QString& text); // blanks at its ends don't count

    // Whether anything of the page is left.
    bool isFound() const { return found_; }

Q_SIGNALS:
    void pageChanged();
    void soughtTextChanged();
    void foundChanged();

private:
    void narrow();
    bool holds(const QQuickItem& part) const;
    bool showParts(const QList<QQuickItem*>& parts) const; // true when any of them is shown
    QList<bool> heldParts(const QList<QQuickItem*>& parts) const;
    static void keepHeadings(const QList<QQuickItem*>& parts, QList<bool>& shown);

    QPointer<QQuickItem> page_;
    QString soughtText_;
    bool found_ = false;
};

} // namespace tessarine
