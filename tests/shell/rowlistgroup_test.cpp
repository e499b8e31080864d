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
        forms.push_back({"frmGamesAnagrams", [this](const FormContext& context) {
                             auto* form = new EditorForm({"frmGamesAnagrams", "Games ~ Anagrams"});
                             form->add(new RowListGroupPart(group(), context));
                             return form;
                         }});
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

} // namespace
} // namespace quillfen
