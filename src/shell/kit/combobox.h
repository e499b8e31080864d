#pragma once

#include <QComboBox>

namespace quillfen {

/// A combo box that the wheel changes only while it has the focus, so that scrolling past one changes
/// nothing.
class ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget* parent = nullptr);

    /// Paints the field in the palette's Base and Text colours, flat as a text box shows them.
    void setFlatField(bool flat);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_flatField = false;
};

} // namespace quillfen
