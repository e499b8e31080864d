// What all forms say of what they would save: nothing without a reason, and something wherever Lua or the
// next load disagrees.
#include "advice/notloading.h"
#include "check/nodeoffile.h"
#include "declarations/oddfiles.h"
#include "shell/kit/formadvice.h"
#include "shell/sweep.h"
#include "support/realluas/refusal.h"

namespace quillfen::test {
namespace {

class SweepOfAdvice : public SweepOfAHub
{
protected:
    const std::vector<Advice>& adviceOf(EditorForm& form)
    {
        hub.store.log.clear();
        const Shown before = shownBy(form);
        form.advice()->look();
        EXPECT_EQ(hub.store.log, std::vector<std::string>()) << "it only looks";
        EXPECT_EQ(shownBy(form), before);
        return form.advice()->all();
    }

    /// What is true of the hub, whatever the files hold: a function is off, or nobody may use it.
    bool isOfTheHub(const Advice& advice) const
    {
        const auto* list = qobject_cast<RowList*>(advice.control);
        const bool isNobody = list && advice.finding.words.starts_with("no profile is ticked") &&
                              std::none_of(list->rows().begin(), list->rows().end(),
                                           [](const CellRow& row) { return row.checked; });
        const std::string name = advice.finding.words.substr(0, advice.finding.words.find(' '));
        return isNobody ||
               (!advice.elsewhere.isEmpty() && hub.files.ReadTableValue(switchesPath, "b" + name) == "0");
    }

    /// Whether the form says anything of its files.
    bool warns(EditorForm& form)
    {
        const auto& all = adviceOf(form);
        return std::any_of(all.begin(), all.end(), [this](const Advice& each) { return !isOfTheHub(each); });
    }

    void expectNoFalseAlarm(EditorForm& form)
    {
        for (const Advice& advice : adviceOf(form))
            EXPECT_TRUE(isOfTheHub(advice))
                << advice.finding.file << ':' << advice.finding.line << ": " << advice.finding.words;
    }
};

INSTANTIATE_TEST_SUITE_P(Profiles, SweepOfAdvice, testing::Values(1, 5, 64),
                         [](const auto& each) { return "Of" + std::to_string(each.param); });

TEST_P(SweepOfAdvice, NoFormOfAFreshTreeWarns)
{
    forEachForm([this](const std::string&, EditorForm& form) { expectNoFalseAlarm(form); });
}

TEST_P(SweepOfAdvice, NoFormOfARebuiltTreeWarns)
{
    setProfiles(GetParam());
    forEachForm([this](const std::string&, EditorForm& form) { expectNoFalseAlarm(form); });
}

TEST_P(SweepOfAdvice, NoFormThatWasChangedAndSavedWarns)
{
    forEachForm([this](const std::string& key, EditorForm& form) {
        changeEverything(form);
        if (form.isDirty())
            useModals([&form] { button(form, "SAVE").trigger(); });
        useModals([&] { EXPECT_TRUE(close(form)); });
        useModals([&] { expectNoFalseAlarm(open(key.c_str())); });
    });
}

TEST_P(SweepOfAdvice, TheNodeOfEachFormsFileIsKnown)
{
    forEachForm([this](const std::string&, EditorForm& form) {
        for (const auto& [path, mark] : form.files()) {
            const auto file = hub.files.paths().toldInSettings(path);
            if (!file || !hub.store.exists(path))
                continue;
            EXPECT_NE(nodeOfFile(hub.files, hub.profiles, *file), "") << *file;
            return; // one of each form, as each answer is a walk over all of them
        }
    });
}

/// A hub of so many profiles that a grid's file has more lines than its readers look at.
class AdviceOfALargeHub : public Sweep
{
protected:
    AdviceOfALargeHub() { setProfiles(72); }
};

TEST_F(AdviceOfALargeHub, NamesTheLinesBehindThe5000thOfAGrid)
{
    auto& form = open("Security~Kicks~Permissions");
    form.advice()->look();
    EXPECT_TRUE(form.advice()->words().contains("the editor reads no further than line 5,000"));
}

/// The text boxes of a form that a user can write anything into.
QList<QLineEdit*> textBoxes(EditorForm& form, bool (*isOfTheForm)(const QWidget&))
{
    QList<QLineEdit*> boxes;
    for (auto* box : form.findChildren<QLineEdit*>()) {
        if (isOfTheForm(*box) && box->isEnabled() && !box->isReadOnly())
            boxes.append(box);
    }
    return boxes;
}

/// Texts in the boxes of all forms, some of which Lua refuses, and some of which the next load shows
/// otherwise.
class SweepOfTexts : public SweepOfAdvice
{
protected:
    bool luaRefusesWhatWasWritten() const
    {
        for (const std::string& call : hub.store.log) {
            const std::string path = call.substr(call.find(' ') + 1);
            if (!call.starts_with("write ") || !path.ends_with(".tbl") ||
                notLoadingOnceSaved().count(path.substr(hub.root.size() + 1)) > 0)
                continue;
            const std::string& bytes = hub.store.files.at(path);
            if (lua51Refusal(bytes) || lua53Refusal(bytes))
                return true;
        }
        return false;
    }
};

INSTANTIATE_TEST_SUITE_P(Profiles, SweepOfTexts, testing::Values(5),
                         [](const auto& each) { return "Of" + std::to_string(each.param); });

TEST_P(SweepOfTexts, AFormWarnsWhereLuaOrTheNextLoadDisagreesAndNowhereElse)
{
    int warnings = 0;
    int visits = 0;
    for (const char* text :
         {"plain", "a\"b", "a\\", "a\\qb", " a", "a,", "\ta", "a'b", "[a]", "a=b", "a*b", "a^b"}) {
        SCOPED_TRACE(text);
        forEachForm([&](const std::string& key, EditorForm& form) {
            const auto boxes = textBoxes(form, isOfTheForm);
            if (boxes.isEmpty())
                return;
            for (auto* box : boxes)
                box->setText(text);
            const Shown typed = shownBy(form);
            const bool warned = warns(form);
            hub.store.log.clear();
            useModals([&form] { button(form, "SAVE").trigger(); });
            const bool refused = luaRefusesWhatWasWritten();
            useModals([&form] { button(form, "DISCARD").trigger(); });
            bool differs = false;
            for (auto* box : boxes) {
                const QString name = box->objectName();
                differs = differs || (box->text() != typed.at(name) && !holds(knownToDiffer, key, name));
            }
            EXPECT_EQ(warned, refused || differs);
            warnings += warned ? 1 : 0;
            ++visits;
        });
    }
    EXPECT_GT(warnings, 20);
    EXPECT_GT(visits - warnings, 20);
}

} // namespace
} // namespace quillfen::test
