#pragma once

#include <QPixmap>
#include <QPointer>
#include <QWidget>

namespace quillfen {

/// The colour of what asks for attention; it stands out from a light ground and from a dark one.
QColor signColour();

/// A small triangle with an exclamation mark in that colour, as high as given.
void drawSign(QPainter& painter, const QRect& place);

/// How high and wide a sign is.
inline constexpr int signSize = 14;

/// An edge around a control and a sign at its end, which say that something is wrong with it: by a tool tip,
/// and to screen readers. All of that goes with the sign.
class ControlSign : public QWidget
{
    Q_OBJECT

public:
    /// The control has a parent, which is given the sign too.
    ControlSign(QWidget& control, const QString& words);
    ~ControlSign() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();
    QRect signPlace() const;

    QPointer<QWidget> m_control;
    QString m_before; ///< what screen readers were told of the control
};

} // namespace quillfen
