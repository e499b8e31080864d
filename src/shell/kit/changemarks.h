#pragma once

#include "declarations/listdeclaration.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <optional>
#include <vector>

class QWidget;

namespace quillfen {

class RowList;

/// Marks what differs from the files: a dot before each control that shows something else than they do, and
/// how many rows came, went and changed. A right click brings a control's default or its stored value back.
class ChangeMarks : public QObject
{
    Q_OBJECT

public:
    /// Follows the controls and lists in `frame`, which owns the marks.
    explicit ChangeMarks(QWidget& frame);

    /// From now on a right click on the control offers its default, as it shows it.
    void offerDefault(const QWidget& control, const QString& value);

    /// The files hold what is shown now.
    void remember();

    /// Looks which controls differ.
    void follow();

    /// What the file holds, of a control that shows something else.
    std::optional<QString> storedOf(const QWidget& control) const;

    /// "1 added, 3 changed, 1 deleted", of all lists together; empty for none.
    QString rowWords() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Watched
    {
        QPointer<QWidget> control;
        QPointer<QWidget> anchor; ///< what the dot stands before: the label, or the control itself
        QString stored{};
        std::optional<QString> byDefault{};
        QPointer<QWidget> dot{};
    };

    struct WatchedRows
    {
        QPointer<RowList> list;
        std::vector<CellRow> stored{};
    };

    void watch(QWidget& control);
    const Watched* find(const QObject& control) const;
    void showMenu(const Watched& watched, QWidget& clicked, const QPoint& at);

    QWidget& m_frame;
    std::vector<Watched> m_controls;
    std::vector<WatchedRows> m_lists;
};

} // namespace quillfen
