#pragma once

#include <QProxyStyle>

namespace quillfen {

/// Fusion, Qt's own style, with edges that can be seen: in a dark palette those of tick boxes, text boxes,
/// number boxes, combo boxes and lists, which it draws darker than the window, which is as good as not at
/// all on a dark one; and in any palette that of a list that has the focus, which nothing else tells while it
/// is empty.
class ContrastStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ContrastStyle() : QProxyStyle(QStringLiteral("fusion")) {}

    /// Gives the application this style where that has Fusion.
    static void install();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

/// How far two colours stand out from each other: 1 for not at all, 21 for black and white.
double contrast(const QColor& one, const QColor& other);

} // namespace quillfen
