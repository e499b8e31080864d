#pragma once

#include <QColor>
#include <QPointer>
#include <QStyle>
#include <QWidget>

#include <optional>

namespace quillfen {

/// A balloon with a title and some lines of help on a control. Each Create replaces the balloon before.
class CTooltip
{
public:
    enum class Style
    {
        Balloon,
        Plain
    };

    CTooltip() = default;
    CTooltip(const CTooltip&) = delete;
    CTooltip& operator=(const CTooltip&) = delete;
    ~CTooltip() { Destroy(); }

    QString Title() const { return m_title; }
    void setTitle(const QString& title); ///< shows at once if the balloon exists
    QString Text() const { return m_text; }
    void setText(const QString& text) { m_text = text; }
    std::optional<QStyle::StandardPixmap> Icon() const { return m_icon; }
    void setIcon(std::optional<QStyle::StandardPixmap> icon) { m_icon = icon; }
    QColor ForeColor() const { return m_foreColor; }
    void setForeColor(const QColor& color) { m_foreColor = color; }
    QColor BackColor() const { return m_backColor; }
    void setBackColor(const QColor& color) { m_backColor = color; }
    Style style() const { return m_style; }
    void setStyle(Style style) { m_style = style; }
    int DelayTime() const { return m_delayTime; }
    void setDelayTime(int milliseconds) { m_delayTime = milliseconds; }
    int VisibleTime() const { return m_visibleTime; }
    void setVisibleTime(int milliseconds) { m_visibleTime = milliseconds; }

    /// Shows the balloon at a point of the parent control, after the delay and for the visible time.
    void Create(QWidget* parent, const QPoint& at);
    void Destroy();

private:
    QString m_title;
    QString m_text;
    std::optional<QStyle::StandardPixmap> m_icon = QStyle::SP_MessageBoxInformation;
    QColor m_foreColor; ///< invalid: the palette's tool tip colour
    QColor m_backColor; ///< invalid: the palette's tool tip colour
    Style m_style = Style::Balloon;
    int m_delayTime = 0;
    int m_visibleTime = 10000;
    QPointer<QWidget> m_window;
};

} // namespace quillfen
