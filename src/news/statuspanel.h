#pragma once

#include "shell/kit/elidedlabel.h"

namespace quillfen {

/// A panel of the main status bar.
class StatusPanel : public ElidedLabel
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
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace quillfen
