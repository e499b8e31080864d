#include "settings/listfile.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/rowlistpart.h"
#include "support/dialogs.h"
#include "support/formtest.h"

#include <QComboBox>
#include <QLineEdit>

namespace quillfen {
namespace {

/// A form of two lists that one file holds.
class GroupForm : public test::FormTest
{
protected:
    GroupForm()
    {
        standIn(DeclaredLists{[this] { return group(); }});
        hub.file("N.tbl") = "tWords = {\r\n\ttOne = {\r\n\t\t\"a\",\r\n\t},\r\n\ttTwo = {\r\n\t\t\"b\",\r\n"
                            "\t\t\"c\",\r\n\t},\r\n}\r\n";
    }

    RowListGroup group() const
    {
        RowListGroup lists;
        for (const char* name : {"One", "Two"}) {
            RowListDeclaration list;
            list.list = std::string("lvw") + name;
            list.toolbar = std::string("tlb") + name;
            list.columns = {name};
            list.menu = lists.lists.empty() ? "mnuFirst" : "mnuSecond";
            list.dialog.addTitle = "Add";
            list.load = loadOf(file, lists.lists.size());
            list.restored = noRows;
            lists.lists.push_back(list);
        }
        lists.save = saveOf(file);
        return lists;
    }

    const NestedListsFile file = {"N.tbl", "tWords", {"tOne", "tTwo"}};
};

TEST_F(GroupForm, ListsOfOneFileAreLoadedApartAndSavedTogether)
{
    auto& form = open("Games~Anagrams");
    EXPECT_EQ(shown(find<RowList>(form, "lvwOne")), QStringList{"a"});
    EXPECT_EQ(shown(find<RowList>(form, "lvwTwo")), (QStringList{"b", "c"}));
    EXPECT_FALSE(isDirty(form));
    test::entering({{{"d"}}}, form.routine("gMenuSecondAddClick"));
    EXPECT_TRUE(isDirty(form));
    button(form, "SAVE").trigger();
    EXPECT_EQ(hub.file("N.tbl"),
              "tWords = {\r\n\ttOne = {\r\n\t\t\"a\",\r\n\t},\r\n\ttTwo = {\r\n\t\t\"b\",\r\n"
              "\t\t\"c\",\r\n\t\t\"d\",\r\n\t},\r\n}\r\n");
}

TEST_F(GroupForm, ARestoreReachesEveryList)
{
    auto& form = open("Games~Anagrams");
    test::answering(QMessageBox::Ok, [&form] { button(form, "RESTORE").trigger(); });
    EXPECT_TRUE(find<RowList>(form, "lvwOne").isEmpty());
    EXPECT_TRUE(find<RowList>(form, "lvwTwo").isEmpty());
}

TEST_F(GroupForm, ADeleteWithoutASelectionMeansTheOnlyRow)
{
    auto& form = open("Games~Anagrams");
    const auto questions = [&form](const char* toolbar) {
        return test::answering(QMessageBox::Ok, [&] { button(form, "DELETE", toolbar).trigger(); }).size();
    };
    for (const char* list : {"lvwOne", "lvwTwo"})
        find<RowList>(form, list).clearSelection();
    EXPECT_EQ(questions("tlbTwo"), 0) << "of two rows neither is meant";
    EXPECT_FALSE(isDirty(form));
    EXPECT_EQ(questions("tlbOne"), 1);
    EXPECT_TRUE(find<RowList>(form, "lvwOne").isEmpty());
    EXPECT_EQ(shown(find<RowList>(form, "lvwTwo")), (QStringList{"b", "c"}));
    EXPECT_TRUE(isDirty(form));
}

/// A form of one list of "good" and "other", to which a test gives its own declaration and hooks.
class HookedForm : public test::FormTest
{
protected:
    HookedForm()
    {
        declared.list = "lvwRows";
        declared.toolbar = "tlbRows";
        declared.columns = {"Rows"};
        declared.menu = "mnuFirst";
        declared.load = [](const SettingsFiles&, const HubProfiles&) {
            return std::vector<CellRow>{{{"good"}}, {{"other"}}};
        };
        standIn(listPart([this] { return declared; }, ListPartKind::Words));
        makers.list = [this](ListPartKind, const RowListDeclaration& each, const FormContext& context) {
            return std::make_unique<RowListPart>(each, context, hooks);
        };
    }

    QStringList after(EditorForm& form, int row, const char* key, const QString& text)
    {
        auto& list = find<RowList>(form, "lvwRows");
        list.select(row);
        test::withModal([&] { button(form, key, "tlbRows").trigger(); },
                        [&text](QWidget& modal) {
                            if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                                box->button(QMessageBox::Ok)->click();
                                return;
                            }
                            test::fillField(test::fieldOf(modal, 0), text);
                            find<QPushButton>(modal, "cmdOK").click();
                        });
        return shown(list);
    }

    RowListDeclaration declared = listOf("Row", Fewest::None);
    RowListHooks hooks;
};

TEST_F(HookedForm, ARowIsTakenOrDeletedOnlyIfItsFormLetsIt)
{
    hooks.accept = [](QWidget*, const CellRow& row, const CellRow*) { return row.cells[0] == "good"; };
    hooks.release = [](QWidget*, const CellRow& row) { return row.cells[0] == "good"; };
    auto& form = open("Games~Anagrams");
    const QStringList rows = {"good", "other"};
    EXPECT_EQ(after(form, 0, "NEW", "bad"), rows);
    EXPECT_EQ(after(form, 0, "EDIT", "bad"), rows);
    EXPECT_EQ(after(form, 1, "DELETE", {}), rows);
    EXPECT_FALSE(isDirty(form));
    EXPECT_EQ(after(form, 1, "EDIT", "good"), (QStringList{"good", "good"}));
    EXPECT_EQ(after(form, 0, "NEW", "good"), (QStringList{"good", "good", "good"}));
    EXPECT_EQ(after(form, 0, "DELETE", {}), (QStringList{"good", "good"}));
    EXPECT_TRUE(isDirty(form));
}

TEST_F(HookedForm, AnAcceptKnowsWhichRowWasEdited)
{
    QStringList asked;
    hooks.accept = [&asked](QWidget* parent, const CellRow& row, const CellRow* before) {
        asked.append(QString::fromStdString((before ? before->cells[0] : "new") + ">" + row.cells[0]));
        return parent->objectName() == "lvwRows";
    };
    auto& form = open("Games~Anagrams");
    after(form, 1, "EDIT", "x");
    after(form, 0, "NEW", "y");
    EXPECT_EQ(asked, (QStringList{"other>x", "new>y"}));
}

TEST_F(HookedForm, ADeclaredRefusalIsToldAndKeepsTheListAsItIs)
{
    declared.refusal = [](const std::vector<CellRow>& rows, const CellRow& row,
                          const CellRow* before) -> std::optional<RowRefusal> {
        if (before || row != rows.front())
            return {};
        return RowRefusal{"Twice", "It is there"};
    };
    auto& form = open("Games~Anagrams");
    QStringList boxes;
    test::withModal([&form] { button(form, "NEW", "tlbRows").trigger(); },
                    [&boxes](QWidget& modal) {
                        if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                            boxes.append(box->windowTitle() + "|" + box->text());
                            box->button(QMessageBox::Ok)->click();
                            return;
                        }
                        test::fillField(test::fieldOf(modal, 0), "good");
                        find<QPushButton>(modal, "cmdOK").click();
                    });
    EXPECT_EQ(boxes, QStringList{"Twice|It is there"});
    EXPECT_EQ(shown(find<RowList>(form, "lvwRows")), (QStringList{"good", "other"}));
    EXPECT_FALSE(isDirty(form));
    EXPECT_EQ(after(form, 1, "EDIT", "good"), (QStringList{"good", "good"})) << "an edited row may be equal";
}

TEST_F(HookedForm, ARefusedEditMayAskAgainWithTheRowAsItWas)
{
    declared.asksAgain = true;
    declared.refusal = [](const std::vector<CellRow>&, const CellRow& row,
                          const CellRow*) -> std::optional<RowRefusal> {
        return row.cells[0] == "bad" ? std::optional(RowRefusal{"Bad", "No"}) : std::nullopt;
    };
    auto& form = open("Games~Anagrams");
    find<RowList>(form, "lvwRows").select(1);
    QStringList offered;
    test::withModal([&form] { button(form, "EDIT", "tlbRows").trigger(); },
                    [&offered](QWidget& modal) {
                        if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
                            box->button(QMessageBox::Ok)->click();
                            return;
                        }
                        auto& field = find<QLineEdit>(modal, "txtTextBox(0)");
                        offered.append(field.text());
                        field.setText(offered.size() == 1 ? "bad" : "fine");
                        find<QPushButton>(modal, "cmdOK").click();
                    });
    EXPECT_EQ(offered, (QStringList{"other", "other"}));
    EXPECT_EQ(shown(find<RowList>(form, "lvwRows")), (QStringList{"good", "fine"}));
}

TEST_F(HookedForm, TheFormRefusesADeletionBeforeTheListDoes)
{
    declared.deletion.minimum = "One must stay";
    hooks.refuse = [](const CellRow& row) { return std::string(row.cells[0] == "other" ? "In use" : ""); };
    auto& form = open("Games~Anagrams");
    const auto told = [&form](int row) {
        find<RowList>(form, "lvwRows").select(row);
        const auto boxes =
            test::answering(QMessageBox::Ok, [&form] { button(form, "DELETE", "tlbRows").trigger(); });
        return boxes.empty() ? QString() : boxes[0].text;
    };
    EXPECT_EQ(told(1), "In use");
    EXPECT_EQ(told(0), "Do you really want to delete this Row?");
    EXPECT_EQ(told(0), "In use");
    EXPECT_EQ(shown(find<RowList>(form, "lvwRows")), QStringList{"other"});
}

TEST_F(HookedForm, ANoteTakesThePlaceOfTheDirtyForm)
{
    int notes = 0;
    hooks.note = [&notes] { ++notes; };
    auto& form = open("Games~Anagrams");
    after(form, 0, "NEW", "a");
    after(form, 0, "EDIT", "b");
    after(form, 0, "DELETE", {});
    EXPECT_EQ(notes, 3);
    EXPECT_FALSE(isDirty(form));
}

TEST_F(HookedForm, AnOfferIsMadeAnewForEachDialog)
{
    declared.dialog.form = EditForm::TextCombo;
    declared.columns = {"Text", "Entry"};
    int offers = 0;
    hooks.offer = [&offers](RowDialog dialog) {
        dialog.entries = {{std::to_string(++offers)}};
        return dialog;
    };
    auto& form = open("Games~Anagrams");
    QStringList seen;
    for (const char* key : {"NEW", "EDIT"})
        test::withModal([&] { button(form, key, "tlbRows").trigger(); },
                        [&seen](QWidget& modal) {
                            seen.append(modal.windowTitle() +
                                        find<QComboBox>(modal, "cboComboBox(0)").itemText(0));
                            find<QPushButton>(modal, "cmdCancel").click();
                        });
    EXPECT_EQ(seen, (QStringList{"Add Row1", "Edit Row2"}));
}

TEST_F(HookedForm, TheFirstRowMayBeSelectedAfterADeletion)
{
    declared.selectsFirst = true;
    declared.load = [](const SettingsFiles&, const HubProfiles&) {
        return std::vector<CellRow>{{{"a"}}, {{"b"}}, {{"c"}}};
    };
    auto& form = open("Games~Anagrams");
    after(form, 1, "DELETE", {});
    EXPECT_EQ(find<RowList>(form, "lvwRows").currentRow(), 0);
}

TEST_F(HookedForm, AnotherButtonMayBeWhatADoubleClickPresses)
{
    hooks.builders = {BuildListToolbar, AddAmendButton};
    hooks.activates = "AMEND";
    auto& form = open("Games~Anagrams");
    int amended = 0;
    QObject::connect(&button(form, "AMEND", "tlbRows"), &QAction::triggered, &form,
                     [&amended] { ++amended; });
    doubleClickRow(find<RowList>(form, "lvwRows"), 1);
    EXPECT_EQ(amended, 1);
}

} // namespace
} // namespace quillfen
