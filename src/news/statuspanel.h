#pragma once

#include <QLabel>

namespace quillfen {

/// A panel of the main status bar: one line of plain text, cut with an ellipsis where the room ends.
class StatusPanel : public QLabel
{
    Q_OBJECT

public:
    StatusPanel(const QString& key, const QString& text, QWidget* parent = nullptr);

    /// Line ends become blanks, and of a long text only its start is kept.
    void setLine(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace quillfen
