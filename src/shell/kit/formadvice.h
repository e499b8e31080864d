#pragma once

#include "advice/finding.h"
#include "declarations/formdeclaration.h"
#include "shell/kit/controlsign.h"
#include "shell/kit/formpart.h"
#include "store/filestore.h"

#include <QPointer>
#include <QTimer>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quillfen {

class EditorForm;
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

/// Looks at what a form would save and says what is wrong with it: its parts are saved into a draft that is
/// thrown away, and whatever those bytes tell is shown by signs at the controls and rows, and one by one in
/// words. It never keeps anybody from anything.
class FormAdvice : public QObject
{
    Q_OBJECT

public:
    /// The form owns it.
    FormAdvice(const FormDeclaration& declaration, const FormContext& context, EditorForm& form);

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
    EditorForm& m_form;
    QTimer m_rest;
    std::optional<std::vector<TableFile>> m_settings; ///< the form's, asked for at the first look
    std::vector<Advice> m_all;
    std::size_t m_shown = 0;                    ///< which of them is told
    bool m_wasGoneTo = false;                   ///< that one's control was gone to
    std::vector<QPointer<ControlSign>> m_signs; ///< their controls' parents own them
    std::vector<QPointer<ListView>> m_signedLists;
};

} // namespace quillfen
