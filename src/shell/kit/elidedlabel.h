#pragma once

#include <QLabel>

namespace quillfen {

/// One line of plain text, shown with an ellipsis where its room ends; text() stays whole.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    /// `inset` is the room that stays free at its left and right, in pixels.
    explicit ElidedLabel(int inset, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_inset;
};

} // namespace quillfen
