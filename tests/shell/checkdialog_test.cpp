// The list of what is wrong in all settings, and the menu of the tree's root that opens it.
#include "check/nodeoffile.h"
#include "check/treecheck.h"
#include "shell/kit/formadvice.h"
#include "shell/kit/numberbox.h"
#include "shell/window/checkdialog.h"
#include "support/formtest.h"

#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>

namespace quillfen {
namespace {

class CheckOfTheSettings : public test::FormTest
{
protected:
    CheckOfTheSettings()
    {
        window().offerCheck(
            {[this] { return checkTree(hub.files); },
             [this](const std::string& file) { return nodeOfFile(hub.files, hub.profiles, file); }});
    }

    CheckDialog& look()
    {
        find<QAction>(window(), "mnuRootCheck").trigger();
        return find<CheckDialog>(window(), "frmCheck");
    }

    static QTreeWidget& list(CheckDialog& dialog) { return find<QTreeWidget>(dialog, "lvwFindings"); }
    static QString summary(CheckDialog& dialog) { return dialog.findChild<QLabel*>()->text(); }

    /// Makes the number of warnings that make a kick a lettered one.
    void breakKicks()
    {
        std::string& bytes = hub.file("Security/Kick/KickSettings.tbl");
        bytes.replace(bytes.find("iKicksMakeBan = 5"), 17, "iKicksMakeBan = 5x");
    }
};

TEST_F(CheckOfTheSettings, IsOfferedByTheRootsMenuOnceThereIsOne)
{
    EXPECT_TRUE(find<QAction>(window(), "mnuRootCheck").isEnabled());
    EXPECT_EQ(find<QAction>(window(), "mnuRootCheck").text(), "&Check the settings");
    MainWindow other(program, FormContext{hub.files, hub.profiles}, functionNodes(), forms, makers);
    EXPECT_FALSE(find<QAction>(other, "mnuRootCheck").isEnabled());
}

TEST_F(CheckOfTheSettings, SaysThatAllIsWell)
{
    auto& dialog = look();
    EXPECT_EQ(dialog.windowTitle(), "Check the settings");
    EXPECT_EQ(list(dialog).topLevelItemCount(), 0);
    EXPECT_EQ(summary(dialog), "All settings load, and the editor shows them as they are.");
}

TEST_F(CheckOfTheSettings, ListsEachFinding)
{
    breakKicks();
    auto& dialog = look();
    ASSERT_EQ(list(dialog).topLevelItemCount(), 1);
    const auto* row = list(dialog).topLevelItem(0);
    EXPECT_EQ(row->text(0), R"(Security\Kick\KickSettings.tbl)");
    EXPECT_EQ(row->text(1), "3");
    EXPECT_TRUE(row->text(2).startsWith("the file won't load: "));
    EXPECT_EQ(summary(dialog), "1 finding. Enter or a double click opens its form.");
}

TEST_F(CheckOfTheSettings, LiesAtTheWindowsLowerEdgeAndHidesNoFormsBeginning)
{
    const auto& dialog = look();
    const QSize room = window().size() - dialog.size();
    EXPECT_EQ(dialog.pos(), window().mapToGlobal(QPoint(room.width(), room.height())));
    EXPECT_LT(dialog.height(), window().height() / 2);
}

TEST_F(CheckOfTheSettings, ARowOpensItsFormAtTheControlAndTheListStays)
{
    breakKicks();
    auto& dialog = look();
    emit list(dialog).itemActivated(list(dialog).topLevelItem(0), 0);
    auto& form = open("Security~Kicks~Settings");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(window().focusWidget(), &find<NumberBox>(form, "updUpDown(1)"));
}

TEST_F(CheckOfTheSettings, LooksAgainAndIsOneWindow)
{
    auto& dialog = look();
    breakKicks();
    find<QPushButton>(dialog, "cmdAgain").click();
    EXPECT_EQ(list(dialog).topLevelItemCount(), 1);
    breakKicks();
    EXPECT_EQ(&look(), &dialog);
    EXPECT_EQ(window().findChildren<CheckDialog*>().size(), 1);
}

} // namespace
} // namespace quillfen
