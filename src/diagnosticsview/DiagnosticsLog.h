#pragma once

#include "diagnosticsview/DiagnosticsLogModel.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tessarine {

class DiagnosticsStore;

// What a pill shows of a category.
struct CategoryPillContent {
    Q_GADGET
    QML_VALUE_TYPE(categoryPillContent)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QColor colour MEMBER colour CONSTANT)

public:
    QString name;
    QColor colour;
};

// The log as the window shows it: its lines, and what narrows them. Main thread.
class DiagnosticsLog : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("DiagnosticsView brings it")
    Q_PROPERTY(tessarine::DiagnosticsLogModel* lines READ lines CONSTANT)
    Q_PROPERTY(QList<tessarine::CategoryPillContent> categories READ categories CONSTANT)
    Q_PROPERTY(int selectedPill READ selectedPill NOTIFY filterChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY filterChanged)
    Q_PROPERTY(bool showsNothing READ showsNothing NOTIFY linesChanged)
    Q_PROPERTY(bool hidesAll READ hidesAll NOTIFY linesChanged)

public:
    // The store outlives the log.
    explicit DiagnosticsLog(DiagnosticsStore& store, QObject* parent = nullptr);

    DiagnosticsLogModel* lines() { return &lines_; }

    const std::optional<Category>& selectedCategory() const { return selectedCategory_; }
    const QString& searchText() const { return searchText_; }
    void setSearchText(const QString& text);

    // All categories, the place of the chosen one among them or -1, and the tap of one: it chooses,
    // or takes the choice back.
    static QList<CategoryPillContent> categories();
    int selectedPill() const { return selectedCategory_ ? int(*selectedCategory_) : -1; }
    Q_INVOKABLE void tapPill(int index);

    bool showsNothing() const { return lines_.rowCount() == 0; }
    bool hidesAll() const; // there are lines, and none passes the filter

    Q_INVOKABLE void clear();

Q_SIGNALS:
    void filterChanged();
    void linesChanged();

private:
    void followStore();
    void applyFilter();

    DiagnosticsStore& store_;
    DiagnosticsLogModel lines_;
    std::optional<Category> selectedCategory_;
    QString searchText_;
};

} // namespace tessarine
