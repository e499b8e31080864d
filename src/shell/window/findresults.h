#pragma once

#include "find/findindex.h"

#include <QAbstractListModel>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QListView;

namespace quillfen {

/// A line of a result with the stretches that were looked for.
struct MarkedLine
{
    QString text;
    std::vector<FindMark> marks;
};

/// Something that can be opened from the find box: what it is, and where it stands.
struct FoundRow
{
    MarkedLine title;
    MarkedLine below; ///< may be empty
    QString key;      ///< the navigator's
    QString control;
    int row = -1;
};

/// The rows below the find box, as a screen reader says them.
class FoundModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setRows(std::vector<FoundRow> rows);
    const FoundRow& at(int row) const { return m_rows[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<FoundRow> m_rows;
};

/// What stands below the find box in place of the tree: how much was found, and a list of it.
class FindResults : public QWidget
{
    Q_OBJECT

public:
    explicit FindResults(QWidget* parent = nullptr);

    void show(const FindResult& result);

    /// The functions that were opened last, by their keys; `captionOf` tells what each is called.
    void showOpened(const QStringList& keys, const std::function<QString(const QString&)>& captionOf);

    /// Opens the current row, if there is one.
    void choose();

    QListView& list() const { return *m_list; }

signals:
    /// The user chose a row; without a control it is the form as a whole.
    void chosen(const QString& key, const QString& control, int row);

private:
    void setRows(const QString& heading, std::vector<FoundRow> rows);

    QLabel* m_heading;
    QListView* m_list;
    FoundModel* m_model;
};

} // namespace quillfen
