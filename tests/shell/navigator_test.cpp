#include "shell/window/navigator.h"
#include "shell/window/toptoolbar.h"
#include "support/formtest.h"
#include "support/golden.h"
#include "support/navigatornames.h"

#include <QMenu>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace quillfen {
namespace {

TEST(NavigatorTable, Has122RowsAnd97KeysWithAFormOfTheirOwn)
{
    EXPECT_EQ(navigatorRows().size(), 122);
    QSet<QString> forms;
    for (const QString& key : formKeys())
        forms.insert(formName(key));
    EXPECT_EQ(formKeys().size(), 97);
    EXPECT_EQ(forms.size(), 97);
}

TEST(NavigatorTable, AFormIsNamedByItsKeysWords)
{
    EXPECT_EQ(formName("General~Switches"), "frmGeneralSwitches");
    EXPECT_EQ(formName("Communication~WelcomeInfo~Settings"), "frmCommunicationWelcomeInfoSettings");
    EXPECT_EQ(formName("UserActions~Insults~Modern"), "frmUserActionsInsultsModern");
    EXPECT_EQ(formName("Hyperlink~Permissions"), "frmHyperlinkPermissions");
    EXPECT_EQ(formName("Communication~HubEmail"), "frmCommunicationHubEmail");
    EXPECT_EQ(formName("Communication~Whisper"), "frmCommunicationWhisper");
}

TEST(NavigatorTable, SomeFormsHaveANameOfTheirOwn)
{
    const QList<QPair<QString, QString>> expected = {
        {"General~Settings", "frmGeneralGeneral"},
        {"General~Commands", "frmLanguageCommands"},
        {"General~Messages", "frmLanguageMessages"},
        {"General~RightClicks", "frmLanguageRightClick"},
        {"General~EnabledRightClicks", "frmGeneralRightClicks"},
        {"CustomiseUser~IntroOutro~Standard", "frmCustomiseUserIntroOutro"},
        {"CustomiseUser~IntroOutro~Custom", "frmCustomiseUserCustomIntroOutro"},
        {"CustomiseUser~IntroOutro~Ascii", "frmCustomiseUserAsciiIntro"},
        {"Games~ScoreClearers", "frmGamesGlobalsScoreClearers"},
        {"Games~Trivia~Settings", "frmGamesTrivia"},
        {"Security~ClientChecker", "frmSecurityClientCheckerSettings"},
        {"Security~Flooder", "frmSecurityFlood"},
        {"Security~Kicks~Settings", "frmSecurityKickSettings"},
        {"Security~Kicks~Permissions", "frmSecurityKickPermissions"},
        {"Security~ProfileRules~Settings", "frmSecurityProfileRuleSettings"},
        {"Security~ProfileRules~Rules", "frmSecurityProfileRuleRules"},
        {"Security~UserLog", "frmSecurityUserLogSettings"},
        {"UserActions~Spells~Settings", "frmUserActionsSpellSettings"},
        {"UserActions~NickSpells~Settings", "frmUserActionsNickSpellSettings"},
    };
    for (const auto& [key, form] : expected)
        EXPECT_EQ(formName(key), form);
    for (const QString word : {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"}) {
        EXPECT_EQ(formName(word + "~LinkOfTheWeek"), "frm" + word + "Week");
        EXPECT_EQ(formName(word + "~NewLinks"), "frm" + word + "NewItems");
        EXPECT_EQ(formName(word + "~RightClicks"), word == "Hyperlink" ? "frmHyperlinkRightClicks" : "");
    }
}

TEST(NavigatorTable, HeadingsAndUnknownKeysHaveNoForm)
{
    for (const char* key : {"", "Quillfen", "General", "General~Language", "Games~Trivia", "Bookshelf",
                            "No~Such", "Communication~WelcomeInfo"})
        EXPECT_EQ(formName(key), "") << key;
}

class NavigatorTest : public test::FormTest
{
protected:
    QTreeWidget& tree() { return find<QTreeWidget>(window(), "tvwFunctions"); }

    QTreeWidgetItem* node(const QString& key)
    {
        for (QTreeWidgetItemIterator item(&tree()); *item; ++item) {
            if ((*item)->data(0, Qt::UserRole).toString() == key)
                return *item;
        }
        return nullptr;
    }

    void click(const QString& key)
    {
        auto* item = node(key);
        for (auto* above = item->parent(); above; above = above->parent())
            above->setExpanded(true);
        tree().scrollToItem(item);
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualItemRect(item).center());
    }

    QToolBar& top() { return find<QToolBar>(window(), "tlbMDITop"); }
    QAction& topButton(const char* key) { return find<QAction>(top(), key); }

    EditorForm* activeForm()
    {
        auto* active = find<QMdiArea>(window(), {}).currentSubWindow();
        return active ? qobject_cast<EditorForm*>(active->widget()) : nullptr;
    }

    void closeForms()
    {
        find<QMdiArea>(window(), {}).closeAllSubWindows();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QStringList openKeys()
    {
        QStringList keys;
        for (const COpenWindow& entry : window().openWindows())
            keys.append(entry.Key());
        return keys;
    }
};

TEST_F(NavigatorTest, EveryRowStandsUnderItsParentInOrderWithItsCaption)
{
    QStringList seen;
    for (QTreeWidgetItemIterator item(&tree()); *item; ++item)
        seen.append((*item)->data(0, Qt::UserRole).toString());
    EXPECT_EQ(seen.takeFirst(), "Quillfen");
    QStringList expected;
    for (const NavigatorRow& row : navigatorRows()) {
        if (row.key == "Communication~Portal")
            continue;
        expected.append(row.key);
        auto* item = node(row.key);
        ASSERT_TRUE(item);
        EXPECT_EQ(item->text(0), row.caption);
        EXPECT_EQ(item->font(0).bold(), item->childCount() > 0) << row.key.toStdString();
        const QString parent = parentKey(row.key);
        EXPECT_EQ(item->parent()->data(0, Qt::UserRole).toString(), parent.isEmpty() ? "Quillfen" : parent);
    }
    EXPECT_EQ(seen, expected); // a walk down the tree meets the rows in the table's order
}

TEST_F(NavigatorTest, TreeAndDropDownsHoldEveryRowAsItIsTold)
{
    hub.file("General/Globals/Switches.tbl") += "\tbPortal = 1,\r\n";
    const auto keyOf = [](const QTreeWidgetItem* item) { return item->data(0, Qt::UserRole).toString(); };
    QMap<QString, QList<QAction*>> entries; // of each drop-down those that no node of the tree has met yet
    for (auto* group : top().actions()) {
        if (group->menu())
            entries.insert(group->objectName(), group->menu()->actions());
    }
    std::string seen;
    QTreeWidgetItemIterator item(&tree());
    for (++item; *item; ++item) { // behind the root
        const QString key = keyOf(*item);
        QString dropDown = "-";
        auto& left = entries[key.section('~', 0, 0)];
        if (!left.isEmpty() && left.constFirst()->objectName() == key)
            dropDown = left.takeFirst()->text();
        const QStringList row = {key, keyOf((*item)->parent()), (*item)->text(0), dropDown};
        seen += row.join('|').toStdString() + '\n';
    }
    EXPECT_TRUE(test::sameBytes(seen, test::golden("shell/navigator.txt")));
    for (const auto& left : entries)
        EXPECT_TRUE(left.isEmpty());
}

TEST_F(NavigatorTest, TheRootIsBoldAndExpandedAndTheLanguageFormsHangUnderLanguage)
{
    auto* root = tree().topLevelItem(0);
    EXPECT_EQ(root->text(0), "Quillfen");
    EXPECT_TRUE(root->font(0).bold());
    EXPECT_TRUE(root->isExpanded());
    for (const char* key : {"General~Commands", "General~Messages", "General~RightClicks"})
        EXPECT_EQ(node(key)->parent(), node("General~Language"));
    EXPECT_EQ(node("Hyperlink")->parent(), root);
}

TEST_F(NavigatorTest, ThePortalShowsOnlyWithItsSwitchInTheFile)
{
    EXPECT_EQ(node("Communication~Portal"), nullptr);
    EXPECT_EQ(topButton("Communication").menu()->findChild<QAction*>("Communication~Portal"), nullptr);
}

TEST_F(NavigatorTest, APortalSwitchOfZeroLeavesThePortalOut)
{
    hub.file("General/Globals/Switches.tbl") += "\tbPortal = 0,\r\n";
    EXPECT_EQ(node("Communication~Portal"), nullptr);
    EXPECT_EQ(topButton("Communication").menu()->findChild<QAction*>("Communication~Portal"), nullptr);
}

TEST_F(NavigatorTest, APortalSwitchPutInByHandShowsTheNodeAtTheNextStart)
{
    auto& switches = hub.file("General/Globals/Switches.tbl");
    switches.insert(switches.find("\tbPrivateHub"), "\tbPortal = 1,\r\n");
    ASSERT_TRUE(node("Communication~Portal"));
    EXPECT_EQ(node("Communication~Portal")->text(0), "Portal");
    EXPECT_TRUE(topButton("Communication").menu()->findChild<QAction*>("Communication~Portal"));
}

TEST_F(NavigatorTest, TheTopToolbarHasItsButtonsInOrder)
{
    QStringList keys;
    for (auto* action : top().actions())
        keys.append(action->isSeparator() ? "|" : action->objectName());
    EXPECT_EQ(keys, (QStringList{"TREEVIEW", "|", "General", "Communication", "CustomiseUser", "Games",
                                 "Security", "UserActions", "Bookshelf", "DVDRack", "Jukebox", "Songbook",
                                 "Arcade", "Hyperlink", "|", "DONATE", "|", "SCRIPTS"}));
    EXPECT_EQ(topButton("TREEVIEW").toolTip(), "Show/Hide Functions treeview");
    EXPECT_EQ(topButton("DONATE").toolTip(), "Make a donation and support Morvaleth's Quillfen");
    EXPECT_EQ(topButton("SCRIPTS").toolTip(), "Visit Morvaleth's Scripts Website");
    for (auto* action : top().actions()) {
        EXPECT_TRUE(action->isSeparator() || !action->icon().pixmap(24).isNull())
            << action->objectName().toStdString();
    }
}

TEST_F(NavigatorTest, ADropDownHoldsTheLeavesOfItsGroupUnderTheirOwnCaptions)
{
    const auto entriesOf = [this](const char* group) {
        QStringList entries;
        for (auto* entry : topButton(group).menu()->actions())
            entries.append(entry->objectName() + '=' + entry->text());
        return entries;
    };
    EXPECT_EQ(entriesOf("General"),
              (QStringList{"General~Settings=Settings", "General~Bots=Bots",
                           "General~Commands=Language~Commands", "General~Messages=Language~Messages",
                           "General~RightClicks=Language~RightClicks", "General~News=News",
                           "General~Switches=Switches", "General~EnabledRightClicks=Enabled Right Clicks"}));
    EXPECT_EQ(
        entriesOf("CustomiseUser"),
        (QStringList{"CustomiseUser~CustomRightClick=Custom Right Click",
                     "CustomiseUser~DescriptionTags=Description Tags", "CustomiseUser~HideShare=Hide Share",
                     "CustomiseUser~IntroOutro~Standard=IntroOutro ~ Standard",
                     "CustomiseUser~IntroOutro~Custom=IntroOutro ~ Custom",
                     "CustomiseUser~IntroOutro~Ascii=IntroOutro ~ Ascii"}));
    EXPECT_TRUE(entriesOf("Communication")
                    .contains("Communication~WelcomeInfo~NetworkHubs=Welcome Info ~ Network Hubs"));
    EXPECT_TRUE(
        entriesOf("Communication").contains("Communication~WelcomeInfo~Settings=WelcomeInfo ~ Settings"));
    EXPECT_TRUE(
        entriesOf("UserActions").contains("UserActions~NickSpells~SpellBook=Nick Spells ~ Spell Book"));
    EXPECT_EQ(entriesOf("Arcade"),
              (QStringList{"Arcade~LinkOfTheWeek=Link Of The Week", "Arcade~NewLinks=New Links",
                           "Arcade~Permissions=Permissions", "Arcade~RightClicks=RightClicks"}));
}

TEST_F(NavigatorTest, AClickOnANodeOpensItsForm)
{
    click("General~Switches");
    EXPECT_TRUE(window().findChild<EditorForm*>("frmGeneralSwitches"));
    EXPECT_EQ(openKeys(), QStringList{"General~Switches"});
}

TEST_F(NavigatorTest, TheKeyboardOpensTheSelectedNode)
{
    auto* item = node("General~Settings");
    item->parent()->setExpanded(true);
    tree().setCurrentItem(item);
    QTest::keyClick(&tree(), Qt::Key_Return);
    EXPECT_TRUE(window().findChild<EditorForm*>("frmGeneralGeneral"));
}

TEST_F(NavigatorTest, AHeadingOpensNothingAndLeavesTheWindowMenuAsItWas)
{
    window().OpenFunctionForm("General~Switches");
    for (const char* key : {"General", "General~Language", "Games~Trivia", "Bookshelf"}) {
        click(key);
        EXPECT_EQ(openKeys(), QStringList{"General~Switches"});
    }
}

TEST_F(NavigatorTest, ALeafWithoutAFormDoesNothing)
{
    for (const char* group : {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade"}) {
        const QString key = group + QStringLiteral("~RightClicks");
        click(key);
        find<QAction>(*topButton(group).menu(), key).trigger();
    }
    window().OpenFunctionForm("No~Such");
    EXPECT_TRUE(openKeys().isEmpty());
    EXPECT_TRUE(window().findChild<QMdiArea*>()->subWindowList().isEmpty());
}

TEST_F(NavigatorTest, ADropDownsEntryOpensItsForm)
{
    topButton("General").menu()->findChild<QAction*>("General~Settings")->trigger();
    EXPECT_EQ(openKeys(), QStringList{"General~Settings"});
}

/// What every form has, whichever way it was opened.
void expectWhole(const EditorForm& form, const QString& key)
{
    EXPECT_EQ(form.objectName(), formName(key));
    EXPECT_EQ(form.windowTitle(), form.caption());
    EXPECT_FALSE(form.caption().isEmpty());
    QStringList buttons;
    for (const auto* action : form.findChild<QToolBar*>("tlbFormToolbar")->actions())
        buttons.append(action->objectName());
    buttons.removeAll(QString()); // the separators
    EXPECT_TRUE(buttons == QStringList({"SAVE", "DISCARD", "RESTORE"}) ||
                buttons == QStringList({"SAVE", "DISCARD"}))
        << buttons.join(' ').toStdString();
    const auto panels = form.findChild<QStatusBar*>("stsStatusBar")->findChildren<QLabel*>();
    ASSERT_EQ(panels.size(), 2);
    EXPECT_EQ(panels[0]->text(), "Controls = Clean");
}

TEST_F(NavigatorTest, EveryNodeOpensItsForm)
{
    hub.file("General/Globals/Switches.tbl") += "\tbPortal = 1,\r\n";
    int opened = 0;
    for (QTreeWidgetItemIterator item(&tree()); *item; ++item) {
        const QString key = (*item)->data(0, Qt::UserRole).toString();
        if (formName(key).isEmpty())
            continue;
        SCOPED_TRACE(key.toStdString());
        click(key);
        ASSERT_TRUE(activeForm());
        expectWhole(*activeForm(), key);
        EXPECT_EQ(openKeys(), QStringList{key});
        closeForms();
        ++opened;
    }
    EXPECT_EQ(opened, 95); // all but hub email and whisper, which no node reaches
}

TEST_F(NavigatorTest, EveryDropDownsEntryOpensItsForm)
{
    int opened = 0;
    for (const auto* group : top().actions()) {
        for (auto* entry : group->menu() ? group->menu()->actions() : QList<QAction*>()) {
            const QString key = entry->objectName();
            if (formName(key).isEmpty())
                continue;
            SCOPED_TRACE(key.toStdString());
            entry->trigger();
            ASSERT_TRUE(activeForm());
            expectWhole(*activeForm(), key);
            closeForms();
            ++opened;
        }
    }
    EXPECT_EQ(opened, 94); // the Portal is switched off
}

TEST_F(NavigatorTest, AGroupsButtonWalksThroughItsDropDownAndStartsAgain)
{
    for (const bool portalShown : {false, true}) {
        TopToolbar toolbar(navigatorTable(), portalShown);
        QStringList chosen;
        QObject::connect(&toolbar, &TopToolbar::formChosen,
                         [&chosen](const QString& key) { chosen.append(key); });
        QStringList expected;
        for (const char* group :
             {"General", "Communication", "CustomiseUser", "Games", "Security", "UserActions"}) {
            auto* action = toolbar.findChild<QAction*>(group);
            const auto entries = action->menu()->actions();
            for (const auto* entry : entries)
                expected.append(entry->objectName());
            expected.append(entries.constFirst()->objectName());
            for (int press = 0; press <= entries.size(); ++press)
                action->trigger(); // each group has a counter of its own
        }
        EXPECT_EQ(chosen, expected);
        EXPECT_EQ(chosen.contains("Communication~Portal"), portalShown);
    }
}

TEST_F(NavigatorTest, AnArchiveButtonsBodyDoesNothing)
{
    TopToolbar toolbar(navigatorTable(), false);
    int chosen = 0;
    QObject::connect(&toolbar, &TopToolbar::formChosen, [&chosen] { ++chosen; });
    for (const char* key : {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"}) {
        auto* action = toolbar.findChild<QAction*>(key);
        action->trigger();
        EXPECT_EQ(qobject_cast<QToolButton*>(toolbar.widgetForAction(action))->popupMode(),
                  QToolButton::MenuButtonPopup);
    }
    EXPECT_EQ(chosen, 0);
    toolbar.findChild<QAction*>("Hyperlink")->menu()->actions().constFirst()->trigger();
    EXPECT_EQ(chosen, 1);
}

TEST_F(NavigatorTest, ExpandOpensTheSixGroupsAndNoDeeperNode)
{
    find<QAction>(window(), "EXPAND").trigger();
    for (const char* key : {"General", "Communication", "CustomiseUser", "Games", "Security", "UserActions"})
        EXPECT_TRUE(node(key)->isExpanded()) << key;
    for (const char* key : {"Bookshelf", "Hyperlink", "Games~Trivia", "General~Language"})
        EXPECT_FALSE(node(key)->isExpanded()) << key;
}

TEST_F(NavigatorTest, CloseCollapsesEveryNodeTheRootIncluded)
{
    find<QAction>(window(), "EXPAND").trigger();
    node("Games~Trivia")->setExpanded(true);
    find<QAction>(find<QToolBar>(window(), "tlbSidebar"), "CLOSE").trigger();
    for (QTreeWidgetItemIterator item(&tree()); *item; ++item)
        EXPECT_FALSE((*item)->isExpanded());
}

TEST_F(NavigatorTest, TheSideBarsButtonsHaveTheirToolTips)
{
    auto& bar = find<QToolBar>(window(), "tlbSidebar");
    EXPECT_EQ(find<QAction>(bar, "EXPAND").toolTip(), "Expand Nodes");
    EXPECT_EQ(find<QAction>(bar, "CLOSE").toolTip(), "Close Nodes");
}

TEST_F(NavigatorTest, TheSideBarIsShownAndHiddenAsAWhole)
{
    auto& panel = find<QWidget>(window(), "picSideBar");
    EXPECT_TRUE(panel.isVisible());
    topButton("TREEVIEW").trigger();
    EXPECT_FALSE(panel.isVisible());
    find<QAction>(window(), "mnuToolsSideBar").trigger();
    EXPECT_TRUE(panel.isVisible());
}

class TreeFollows : public NavigatorTest
{
protected:
    QString selected()
    {
        const auto items = tree().selectedItems();
        return items.size() == 1 ? items.constFirst()->data(0, Qt::UserRole).toString() : QString();
    }

    void activate(const EditorForm& form)
    {
        find<QMdiArea>(window(), {}).setActiveSubWindow(qobject_cast<QMdiSubWindow*>(form.parentWidget()));
    }
};

TEST_F(TreeFollows, TheFormThatOpensOrIsActivated)
{
    auto& anagrams = open("Games~Anagrams");
    EXPECT_EQ(selected(), "Games~Anagrams");
    open("General~Commands");
    EXPECT_EQ(selected(), "General~Commands");
    activate(anagrams);
    EXPECT_EQ(selected(), "Games~Anagrams");
    EXPECT_EQ(openKeys(), (QStringList{"Games~Anagrams", "General~Commands"}));
}

TEST_F(TreeFollows, AndShowsItsNodeWithoutOpeningOtherGroups)
{
    open("Games~Trivia~Questions");
    EXPECT_TRUE(tree().viewport()->rect().contains(tree().visualItemRect(node("Games~Trivia~Questions"))));
    for (QTreeWidgetItemIterator item(&tree()); *item; ++item) {
        const QString key = (*item)->data(0, Qt::UserRole).toString();
        const bool above = QStringList{"Quillfen", "Games", "Games~Trivia"}.contains(key);
        EXPECT_EQ((*item)->isExpanded(), above) << key.toStdString();
    }
}

TEST_F(TreeFollows, NotWhenTheWindowOnlyGetsTheFocusBack)
{
    open("Games~Anagrams");
    find<QAction>(find<QToolBar>(window(), "tlbSidebar"), "CLOSE").trigger();
    click("General");
    test::answering(QMessageBox::Ok, [this] { find<QAction>(window(), "mnuBotsEdit").trigger(); });
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    EXPECT_EQ(selected(), "General");
    EXPECT_FALSE(node("Games")->isExpanded());
}

TEST_F(TreeFollows, TheFormThatIsChosenAgainThoughItIsActive)
{
    open("Games~Anagrams");
    click("General");
    open("Games~Anagrams");
    EXPECT_EQ(selected(), "Games~Anagrams");
}

TEST_F(TreeFollows, AFormWithoutANodeLeavesTheTreeAsItIs)
{
    open("Games~Anagrams");
    open("Communication~Whisper");
    EXPECT_EQ(selected(), "Games~Anagrams");
}

} // namespace
} // namespace quillfen
