#pragma once

#include "advice/finding.h"
#include "declarations/formdeclaration.h"
#include "shell/kit/controlsign.h"
#include "shell/kit/formpart.h"
#include "store/draft.h"

#include <QPointer>
#include <QTimer>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quillfen {

class FormPart;
class ListView;

/// Something that is wrong with what a form would save, and where.
struct Advice
{
    Finding finding;
    QPointer<QWidget> control{}; ///< null where no single one is meant
    int row = -1;                ///< of a list; -1 for none
    QString elsewhere{};         ///< the key of another form's node that it leads to
};

/// What advice asks of the form that it is given to.
class AdvisedForm
{
public:
    virtual const std::vector<FormPart*>& parts() const = 0;

    /// The files that its last load asked for, also those that weren't there.
    virtual const std::map<std::string, FileMark>& files() const = 0;

    virtual bool isDirty() const = 0;

    /// Whether all of it was loaded.
    virtual bool isWhole() const = 0;

    /// Brings a control into sight and gives it the focus; of a list, a row too, which is counted from 0.
    virtual void goTo(QWidget& control, int row) = 0;

protected:
    ~AdvisedForm() = default;
};

/// Looks at what a form would save and says what is wrong with it: its parts are saved into a draft that is
/// thrown away, and whatever those bytes tell is shown by signs at the controls and rows, and one by one in
/// words. It never keeps anybody from anything.
class FormAdvice : public QObject
{
    Q_OBJECT

public:
    FormAdvice(const FormDeclaration& declaration, const FormContext& context, AdvisedForm& form,
               QObject* parent);

    /// Looks when the keys rest.
    void lookSoon() { m_rest.start(); }

    /// Looks at once.
    void look();

    const std::vector<Advice>& all() const { return m_all; }

    /// What the second status panel says: the first piece of advice, or the one that was gone to last. Empty
    /// where all is well.
    QString words() const;

    /// Goes to the first piece's control, and from there to the next one's.
    void goToNext();

    /// Goes to what is wrong with a file, if anything is: what was found in those words, else the first.
    void goTo(const Finding& finding);

signals:
    /// What is said may be something else now.
    void looked();

    /// Advice leads to a row in another form.
    void elsewhereAsked(const QString& key, const QString& list, const QString& row);

private:
    struct SavedPart
    {
        FormPart* part;
        std::vector<StoreChange> changes;
    };

    std::vector<SavedPart> saved() const;
    std::vector<Advice> found();
    void findIn(FormPart& part, const StoreChange& change, std::vector<Advice>& found);
    void findInTexts(FormPart& part, std::vector<Advice>& found) const;
    void findOnDisk(std::vector<Advice>& found) const;
    void findSwitchedOff(std::vector<Advice>& found) const;
    Advice placed(const Finding& finding, const std::string& bytes, FormPart& part,
                  const std::vector<Advice>& found);
    const TableFile* settingsFile(const std::string& path);
    void showSigns();
    void goTo(std::size_t place);

    FormDeclaration m_declaration;
    FormContext m_context;
    AdvisedForm& m_form;
    QTimer m_rest;
    std::optional<std::vector<TableFile>> m_settings; ///< the form's, asked for at the first look
    std::vector<Advice> m_all;
    std::size_t m_shown = 0;                    ///< which of them is told
    bool m_wasGoneTo = false;                   ///< that one's control was gone to
    std::vector<QPointer<ControlSign>> m_signs; ///< their controls' parents own them
    std::vector<QPointer<ListView>> m_signedLists;
};

} // namespace quillfen
