#pragma once

#include <QAbstractSpinBox>
#include <QLineEdit>

namespace quillfen {

/// A text box for a number with its up-down. What is typed or loaded stands as it is, also outside the range
/// or when it is no number at all; only the arrows keep the range.
class NumberBox : public QAbstractSpinBox
{
    Q_OBJECT

public:
    /// `control` is the text box's name, "txtUpDown(0)"; the up-down's is the same with "upd",
    /// "updUpDown(0)".
    NumberBox(const QString& control, int minimum, int maximum, QWidget* parent = nullptr);

    QString text() const { return lineEdit()->text(); }
    void setText(const QString& text);

    /// Lets nothing but arrows, Page keys and wheel change the number; the box looks and says so.
    void setOnlyArrows();

    /// By how much one step of the arrows changes the number; 1 at first.
    void setStep(int step) { m_step = step; }

    void stepBy(int steps) override;
    bool event(QEvent* event) override;
    QSize sizeHint() const override;

signals:
    void textChanged(const QString& text);

protected:
    void initStyleOption(QStyleOptionSpinBox* option) const override;
    StepEnabled stepEnabled() const override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    long long value() const;

    long long m_minimum;
    long long m_maximum;
    int m_step = 1;
};

} // namespace quillfen
