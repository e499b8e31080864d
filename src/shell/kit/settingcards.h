#pragma once

#include "declarations/settingcard.h"

#include <QObject>
#include <QString>

#include <map>

class QWidget;

namespace quillfen {

class ChangeMarks;

/// Shows the cards of a form's settings: as tool tips, where a control has none of its own, and at a key for
/// the control that has the focus. Screen readers are told them as what the controls are for.
class SettingCards : public QObject
{
    Q_OBJECT

public:
    /// The marks tell what the files hold. `frame` owns the cards.
    SettingCards(QWidget& frame, const ChangeMarks& marks);

    /// From now on the control of its name has this card. Returns that control, null where there is none.
    QWidget* add(const SettingCard& card);

    /// Shows the card of the control that has the focus, or of the nearest around it. False where there is
    /// none.
    bool show();

    bool isShown() const;

    /// A control's card as plain text; empty if it has none.
    QString textOf(const QWidget& control) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_frame;
    const ChangeMarks& m_marks;
    std::map<const QObject*, SettingCard> m_cards;
    QString m_shown;
};

} // namespace quillfen
