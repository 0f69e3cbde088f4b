#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The texts that a menu shows. While it is open they stay as they were when it opened, whatever its
// owner's list becomes: nothing moves under the pointer, and nobody gets another entry than the one
// aimed at. Main thread.
class MenuTexts : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QString> texts READ texts WRITE setTexts NOTIFY textsChanged REQUIRED)
    Q_PROPERTY(int chosenIndex READ chosenIndex WRITE setChosenIndex NOTIFY chosenIndexChanged)
    Q_PROPERTY(bool open READ isOpen WRITE setOpen NOTIFY openChanged)
    Q_PROPERTY(QList<QString> shown READ shown NOTIFY shownChanged)
    Q_PROPERTY(int shownIndex READ shownIndex NOTIFY shownIndexChanged)

public:
    // What the owner has, and which of them is chosen; -1 for none.
    const QStringList& texts() const { return texts_; }
    void setTexts(const QStringList& texts);
    int chosenIndex() const { return chosenIndex_; }
    void setChosenIndex(int index);

    bool isOpen() const { return open_; }
    void setOpen(bool open);

    // What the menu shows, and which of them is marked as chosen.
    const QStringList& shown() const { return shown_; }
    int shownIndex() const { return shownIndex_; }

    // Where a shown text stands in the owner's list by now; -1 when it has gone. Of several equal
    // texts the first stands for the first, and so on.
    Q_INVOKABLE int ownersIndex(int shownIndex) const;

Q_SIGNALS:
    void textsChanged();
    void chosenIndexChanged();
    void openChanged();
    void shownChanged();
    void shownIndexChanged();

private:
    void showLatest();

    QStringList texts_;
    int chosenIndex_ = -1;
    bool open_ = false;
    QStringList shown_;
    int shownIndex_ = -1;
};

} // namespace tessarine
