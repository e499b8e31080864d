#pragma once

#include <QProxyStyle>

namespace quillfen {

/// The platform's style, with tick boxes that can be seen in a dark palette: Fusion draws their frames darker
/// than the window, which is as good as not at all on a dark one.
class ContrastStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Gives the application this style where its own needs it.
    static void install();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace quillfen
