#pragma once

#include <QHeaderView>

class QLineEdit;

namespace quillfen {

/// A list's header with its captions, below which a line for a filter can be shown.
class ListHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit ListHeader(QWidget* parent);

    /// Shows the line, with the cursor in it; the captions stay as they were, shown or not.
    void openFilter();

    /// Takes the line off with what it holds.
    void closeFilter();

    /// Shows the line with this text in it.
    void setFilter(const QString& text);

    /// What stands in the line; empty where it isn't shown.
    QString filter() const;

    QSize sizeHint() const override;

signals:
    void filterChanged();

    /// Enter or Down in the line: the list is to have the focus.
    void filterLeft();

protected:
    void updateGeometries() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeLine();
    void showLine();
    bool isFiltering() const;

    QLineEdit* m_line = nullptr; ///< made when it is first asked for
    bool m_hasCaptions = true;   ///< while the line is shown
};

} // namespace quillfen
