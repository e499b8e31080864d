#include "settings/listfile.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/rowlistpart.h"
#include "support/dialogs.h"
#include "support/formtest.h"

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

/// A list that lets nothing be taken or deleted but what is called "good".
class PickyPart : public RowListPart
{
public:
    using RowListPart::RowListPart;

protected:
    bool mayTake(const CellRow& row) override { return row.cells.front() == "good"; }
    bool mayDelete(const CellRow& row) override { return row.cells.front() == "good"; }
};

class PickyForm : public test::FormTest
{
protected:
    PickyForm()
    {
        RowListDeclaration list;
        list.list = "lvwRows";
        list.toolbar = "tlbRows";
        list.columns = {"Rows"};
        list.menu = "mnuFirst";
        list.dialog.addTitle = "Add";
        list.load = [](const SettingsFiles&, const HubProfiles&) {
            return std::vector<CellRow>{{{"good"}}, {{"other"}}};
        };
        standIn(listPart([list] { return list; }, ListPartKind::Words));
        makers.list = [](ListPartKind, const RowListDeclaration& each, const FormContext& context) {
            return std::make_unique<PickyPart>(each, context);
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
};

TEST_F(PickyForm, ARowIsTakenOrDeletedOnlyIfItsFormLetsIt)
{
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

} // namespace
} // namespace quillfen
