#pragma once

#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

class QQuickItem;
class QQuickWindow;

namespace tessarine::testing {

// A text that a window shows, where it draws it, and what is wrong with it.
struct ShownText {
    QString text;
    QRectF place; // of what is drawn, in the window's points
    bool
        isCut; // by its own bounds, by what it is in, or by the window; scrolling helps up and down
    const QQuickItem* layer; // popups lie over the others, each in a layer of its own
    QRectF sight;            // the part of the place that isn't scrolled away
    double windowWidth;
    bool goesItsOwnWay;    // what can be selected is aligned as its own script is
    qsizetype longestLine; // in characters
};

// In the order of the items. Texts that the user types are left out.
QList<ShownText> shownTexts(const QQuickWindow& window);

// The faults as sentences, none where everything is well to be read.
QStringList faultsOf(const QList<ShownText>& texts);

} // namespace tessarine::testing
