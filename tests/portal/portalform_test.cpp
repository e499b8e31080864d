#include "portal/portalpart.h"
#include "shell/kit/rowlist.h"
#include "support/formtest.h"
#include "support/golden.h"

#include <QContextMenuEvent>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

namespace quillfen {
namespace {

using test::answering;
using test::golden;
using test::sameBytes;

class PortalForm : public test::FormTest
{
protected:
    static std::string saved() { return golden("portal/PortalSettings.save.tbl"); }

    EditorForm& form() { return open("Communication~Portal"); }
    RowList& hubs() { return find<RowList>(form(), "lvwHubs"); }
    RowList& nicks() { return find<RowList>(form(), "lvwNicks"); }
    QLineEdit& field(int at) { return find<QLineEdit>(form(), QStringLiteral("txtTextBox(%1)").arg(at)); }
    QAction& hubButton(const char* key) { return button(form(), key, "tlbHubs"); }
    QAction& nickButton(const char* key) { return button(form(), key, "tlbNicks"); }
    void save() { button(form(), "SAVE").trigger(); }

    /// Fills an edit dialog's fields and presses one of its buttons.
    static void fill(QWidget& dialog, const QStringList& values, const char* press)
    {
        for (int at = 0; at < values.size(); ++at)
            find<QLineEdit>(dialog, QStringLiteral("txtTextBox(%1)").arg(at)).setText(values[at]);
        find<QPushButton>(dialog, press).click();
    }

    /// Triggers a button and answers the dialogs that it opens, one after the other.
    static void through(QAction& action, QList<std::pair<QStringList, const char*>> answers)
    {
        test::withModal([&] { action.trigger(); },
                        [&](QWidget& dialog) {
                            ASSERT_FALSE(answers.isEmpty());
                            const auto [values, press] = answers.takeFirst();
                            fill(dialog, values, press);
                        });
        EXPECT_TRUE(answers.isEmpty());
    }

    QString shownHubs() { return shown(hubs()).join(' '); }

    std::string& settings = hub.file("Communication/Portal/PortalSettings.tbl");
    std::string& bots = hub.file("General/Bots/Bots.tbl");
};

TEST_F(PortalForm, ShowsTheFile)
{
    settings = saved();
    EXPECT_EQ(form().objectName(), "frmCommunicationPortal");
    EXPECT_EQ(form().windowTitle(), "Communication ~ Portal");
    EXPECT_EQ(field(0).text(), "bridge");
    EXPECT_EQ(field(1).text(), "The bridge");
    EXPECT_EQ(field(2).text(), "bridge@hub");
    EXPECT_EQ(field(3).text(), "10.0.0.1");
    EXPECT_EQ(shown(hubs()), (QStringList{"one.hub:411|secret|5001", "two.hub:412||5002"}));
    EXPECT_EQ(shown(nicks()), (QStringList{"spam", "Loud"}));
    EXPECT_FALSE(isDirty(form()));
}

TEST_F(PortalForm, HasItsLabelsAndColumns)
{
    const char* const labels[] = {"Username", "Description", "Email", "IP"};
    for (int at = 0; at < 4; ++at) {
        auto& label = find<QLabel>(form(), QStringLiteral("lblLabel(%1)").arg(at));
        EXPECT_EQ(label.text(), labels[at]);
        EXPECT_EQ(label.buddy(), &field(at));
        EXPECT_EQ(field(at).accessibleName(), labels[at]);
    }
    QStringList texts;
    for (auto* label : form().findChildren<QLabel*>())
        texts.append(label->text());
    EXPECT_TRUE(texts.contains("Hub Settings"));
    EXPECT_TRUE(texts.contains("Nicks To Ignore"));

    const auto caption = [](RowList& list, int column) {
        return list.model()->headerData(column, Qt::Horizontal).toString();
    };
    EXPECT_EQ(caption(hubs(), 0), "Hub Address");
    EXPECT_EQ(caption(hubs(), 1), "Client Password");
    EXPECT_EQ(caption(hubs(), 2), "Client Port");
    EXPECT_EQ(caption(hubs(), 3), "HubName");
    EXPECT_TRUE(hubs().isColumnHidden(3));
    EXPECT_EQ(caption(nicks(), 0), "ID");
    EXPECT_TRUE(nicks().isColumnHidden(0));
    EXPECT_EQ(caption(nicks(), 1), "Nicks");
    EXPECT_EQ(hubs().columnWidth(0), hubs().width() / 2);
    EXPECT_EQ(hubs().columnWidth(1), hubs().width() / 4);
    EXPECT_EQ(hubs().columnWidth(2), hubs().width() / 4 - 300 / 15);
    EXPECT_EQ(nicks().columnWidth(1), nicks().width() - 300 / 15);
    EXPECT_EQ(nicks().columnViewportPosition(1), 0) << "the hidden column takes no room";
}

TEST_F(PortalForm, OffersNoDefaults)
{
    QStringList keys;
    for (auto* action : find<QToolBar>(form(), "tlbFormToolbar").actions()) {
        if (!action->isSeparator())
            keys.append(action->objectName());
    }
    EXPECT_EQ(keys, (QStringList{"SAVE", "DISCARD"}));
}

TEST_F(PortalForm, IsSavedAsItWasEdited)
{
    const QStringList user = {"bridge", "The bridge", "bridge@hub", "10.0.0.1"};
    for (int at = 0; at < 4; ++at) {
        QTest::keyClicks(&field(at), user[at]);
        EXPECT_TRUE(isDirty(form()));
    }
    while (!nicks().isEmpty()) {
        nicks().select(0);
        answering(QMessageBox::Ok, [this] { nickButton("DELETE").trigger(); });
    }
    through(hubButton("NEW"),
            {{{"one.hub:411", "secret", "5001"}, "cmdAdd"}, {{"two.hub:412", "x", "5002"}, "cmdOK"}});
    through(nickButton("NEW"), {{{"SPAM"}, "cmdAdd"}, {{"x"}, "cmdOK"}});
    nicks().select(1);
    through(nickButton("EDIT"), {{{"Loud"}, "cmdOK"}});
    EXPECT_EQ(shown(nicks()), (QStringList{"spam", "Loud"}))
        << "an added nick is lowered, an edited one is not";
    save();
    EXPECT_FALSE(isDirty(form()));
    std::string expected = saved();
    expected.replace(expected.find("sClientPassword = \"\""), 20, "sClientPassword = \"x\"");
    EXPECT_TRUE(sameBytes(settings, expected));
}

TEST_F(PortalForm, ItsFirstSaveMakesTheFolder)
{
    hub.store.folders.erase(hub.root + "/Communication/Portal");
    QTest::keyClicks(&field(0), "x");
    save();
    EXPECT_FALSE(isDirty(form()));
    EXPECT_TRUE(hub.store.folders.contains(hub.root + "/Communication/Portal"));
}

TEST_F(PortalForm, AFailedSaveIsToldAndLeavesItDirty)
{
    QTest::keyClicks(&field(0), "x");
    hub.store.failingCall = static_cast<int>(hub.store.log.size());
    const auto boxes = answering(QMessageBox::Ok, [this] { save(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].text.contains("No space left"));
    EXPECT_TRUE(isDirty(form()));
}

TEST_F(PortalForm, AnEmptyIgnoreListIsFilledWithTheSystemsBots)
{
    bots = "tBots = {\r\n\ttMain = {\r\n\t\tsName = \"Boss\",\r\n\t},\r\n";
    EXPECT_EQ(shown(nicks()), QStringList({"", "Boss"})) << "a bot without a name is an empty nick";
    EXPECT_FALSE(isDirty(form()));
}

TEST_F(PortalForm, AnIgnoreListThatWasEmptiedAndSavedIsFilledAgain)
{
    settings = saved();
    for (int row = 0; row < 2; ++row) {
        nicks().select(0);
        answering(QMessageBox::Ok, [this] { nickButton("DELETE").trigger(); });
    }
    save();
    EXPECT_TRUE(settings.ends_with("\ttIgnoreNicks = {\r\n\t},\r\n"));
    close(form());
    EXPECT_EQ(
        shown(nicks()),
        QStringList({QStringLiteral(u"\u2022CommunicationBot\u2022"),
                     QStringLiteral(u"\u2022CustomiseUserBot\u2022"), QStringLiteral(u"\u2022GamesBot\u2022"),
                     QStringLiteral(u"\u2022Quillfen\u2022"), QStringLiteral(u"\u2022SecurityBot\u2022"),
                     QStringLiteral(u"\u2022UserActionBot\u2022")}));
}

TEST_F(PortalForm, AFullHubListOffersNoMore)
{
    settings = saved();
    EXPECT_FALSE(hubButton("NEW").isEnabled());
    window().popUpMenu("mnuFirst")->actions().constFirst()->trigger();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(PortalForm, AddingASecondHubDarkensNew)
{
    EXPECT_FALSE(hubButton("EDIT").isEnabled());
    through(hubButton("NEW"), {{{"one.hub:411", "p", "5001"}, "cmdOK"}});
    EXPECT_TRUE(hubButton("EDIT").isEnabled());
    EXPECT_TRUE(hubButton("NEW").isEnabled());
    through(hubButton("NEW"), {{{"two.hub:412", "q", "5002"}, "cmdOK"}});
    EXPECT_FALSE(hubButton("NEW").isEnabled());
    EXPECT_EQ(hubs().rows()[1].cells, (std::vector<std::string>{"two.hub:412", "q", "5002", ""}));
}

TEST_F(PortalForm, ThreeHubsAddedInOneGoAllJoinAndNewStaysDark)
{
    through(hubButton("NEW"), {{{"one.hub:411", "p", "5001"}, "cmdAdd"},
                               {{"two.hub:412", "q", "5002"}, "cmdAdd"},
                               {{"three.hub:413", "r", "5003"}, "cmdOK"}});
    EXPECT_EQ(shown(hubs()),
              (QStringList{"one.hub:411|p|5001", "two.hub:412|q|5002", "three.hub:413|r|5003"}));
    EXPECT_FALSE(hubButton("NEW").isEnabled());
}

TEST_F(PortalForm, TheHubDialogsHaveTheirWords)
{
    settings = saved();
    hubs().select(0);
    test::withModal([this] { hubButton("EDIT").trigger(); },
                    [](QWidget& dialog) {
                        EXPECT_EQ(dialog.objectName(), "frmGlobalEditThreeFields");
                        EXPECT_EQ(dialog.windowTitle(), "Edit Hub");
                        EXPECT_EQ(find<QLabel>(dialog, "lblLabel(0)").text(), "Hub Address");
                        EXPECT_EQ(find<QLabel>(dialog, "lblLabel(1)").text(), "Client Password");
                        EXPECT_EQ(find<QLabel>(dialog, "lblLabel(2)").text(), "Client Port");
                        EXPECT_EQ(find<QLineEdit>(dialog, "txtTextBox(0)").text(), "one.hub:411");
                        EXPECT_EQ(find<QLineEdit>(dialog, "txtTextBox(1)").text(), "secret");
                        EXPECT_EQ(find<QLineEdit>(dialog, "txtTextBox(2)").text(), "5001");
                        find<QPushButton>(dialog, "cmdCancel").click();
                    });
    EXPECT_FALSE(isDirty(form()));
    test::withModal([this] { hubButton("NEW").trigger(); },
                    [](QWidget& dialog) {
                        EXPECT_EQ(dialog.windowTitle(), "Add Hub");
                        EXPECT_EQ(find<QLineEdit>(dialog, "txtTextBox(0)").text(), "");
                        find<QPushButton>(dialog, "cmdCancel").click();
                    });
}

TEST_F(PortalForm, AnEditedHubGoesIntoTheLastRowAndNewComesBack)
{
    settings = saved();
    hubs().select(0);
    through(hubButton("EDIT"), {{{"new.hub:999", "p", "6000"}, "cmdOK"}});
    EXPECT_EQ(shown(hubs()), (QStringList{"one.hub:411|secret|5001", "new.hub:999|p|6000"}));
    EXPECT_EQ(hubs().rows()[1].cells[3], "two.hub:412") << "the hidden name stays";
    EXPECT_TRUE(hubButton("NEW").isEnabled()) << "also with two rows";
    EXPECT_TRUE(isDirty(form()));
}

TEST_F(PortalForm, NewComesBackAfterACancelledEditToo)
{
    settings = saved();
    hubs().select(1);
    EXPECT_FALSE(hubButton("NEW").isEnabled());
    through(hubButton("EDIT"), {{{}, "cmdCancel"}});
    EXPECT_TRUE(hubButton("NEW").isEnabled());
    EXPECT_FALSE(isDirty(form()));
}

TEST_F(PortalForm, AFullListKeepsNewDarkAfterADeletion)
{
    settings = saved();
    hubs().select(1);
    auto boxes = answering(QMessageBox::Cancel, [this] { hubButton("DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Hub?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this Hub?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_EQ(shown(hubs()).size(), 2);
    answering(QMessageBox::Ok, [this] { hubButton("DELETE").trigger(); });
    EXPECT_EQ(shown(hubs()), QStringList{"one.hub:411|secret|5001"});
    EXPECT_EQ(hubs().currentRow(), 0);
    EXPECT_FALSE(hubButton("NEW").isEnabled());
    EXPECT_TRUE(isDirty(form()));
    save();
    close(form());
    EXPECT_TRUE(hubButton("NEW").isEnabled()) << "until the form is opened again";
}

TEST_F(PortalForm, ADeletionThatLeavesTwoRowsLightsNew)
{
    settings = saved();
    hubs().select(0);
    through(hubButton("EDIT"), {{{}, "cmdCancel"}});
    through(hubButton("NEW"), {{{"three.hub:413", "x", "5003"}, "cmdOK"}});
    hubButton("NEW").setEnabled(false);
    hubs().select(2);
    answering(QMessageBox::Ok, [this] { hubButton("DELETE").trigger(); });
    EXPECT_TRUE(hubButton("NEW").isEnabled());
    EXPECT_EQ(hubs().currentRow(), 0);
}

TEST_F(PortalForm, ADiscardAppendsTheFilesRowsToThoseOnScreen)
{
    settings = saved();
    auto boxes = answering(QMessageBox::Ok, [this] { button(form(), "DISCARD").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(boxes[0].text, "Discard all unsaved changes?");
    EXPECT_EQ(shown(hubs()).size(), 4);
    EXPECT_EQ(shown(nicks()), (QStringList{"spam", "Loud", "spam", "Loud"}));
    EXPECT_FALSE(isDirty(form()));
    QTest::keyClicks(&field(0), "x");
    save();
    EXPECT_NE(settings.find("\t\t[4] = {\r\n\t\t\tsHubAddress = \"two.hub:412\","), std::string::npos);
    EXPECT_NE(settings.find("\t\t[4] = \"Loud\","), std::string::npos);
}

TEST_F(PortalForm, ADiscardWithOneHubOnScreenAndOneInTheFileShowsTwoAndDarkensNew)
{
    through(hubButton("NEW"), {{{"one.hub:411", "p", "5001"}, "cmdOK"}});
    save();
    EXPECT_TRUE(hubButton("NEW").isEnabled());
    answering(QMessageBox::Ok, [this] { button(form(), "DISCARD").trigger(); });
    EXPECT_EQ(shown(hubs()), (QStringList{"one.hub:411|p|5001", "one.hub:411|p|5001"}));
    EXPECT_FALSE(hubButton("NEW").isEnabled());
}

TEST_F(PortalForm, TheNickDialogsAndQuestionHaveTheirWords)
{
    settings = saved();
    nicks().select(0);
    for (const auto& [key, title] : {std::pair("EDIT", "Edit Nick"), std::pair("NEW", "Add Nick")}) {
        test::withModal([this, key = key] { nickButton(key).trigger(); },
                        [title = title](QWidget& dialog) {
                            EXPECT_EQ(dialog.objectName(), "frmGlobalEditOneFields");
                            EXPECT_EQ(dialog.windowTitle(), title);
                            EXPECT_EQ(find<QLabel>(dialog, "lblLabel(0)").text(), "Nick");
                            find<QPushButton>(dialog, "cmdCancel").click();
                        });
    }
    const auto boxes = answering(QMessageBox::Ok, [this] { nickButton("DELETE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete Nick?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this Nick?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_EQ(shown(nicks()), QStringList{"Loud"});
    EXPECT_TRUE(isDirty(form()));
}

TEST_F(PortalForm, AnEditedNickGoesIntoTheLastRow)
{
    settings = saved();
    nicks().select(0);
    through(nickButton("EDIT"), {{{"Other"}, "cmdOK"}});
    EXPECT_EQ(shown(nicks()), (QStringList{"spam", "Other"}));
}

TEST_F(PortalForm, AddedNicksAreLoweredInTheWholeCodePage)
{
    settings = saved();
    through(nickButton("NEW"), {{{QStringLiteral(u"\u00C4Q\u0160\u2022")}, "cmdOK"}});
    EXPECT_EQ(shown(nicks()).constLast(), QStringLiteral(u"\u00E4q\u0161\u2022"));
}

TEST_F(PortalForm, ADoubleClickEditsTheRowOfEitherList)
{
    settings = saved();
    const auto titleOf = [](RowList& list, int column) {
        const QPoint place = list.visualRect(list.model()->index(1, column)).center();
        QString title;
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        test::withModal([&] { QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place); },
                        [&](QWidget& dialog) {
                            title = dialog.windowTitle();
                            dialog.close();
                        });
        return title;
    };
    EXPECT_EQ(titleOf(hubs(), 0), "Edit Hub");
    EXPECT_EQ(titleOf(nicks(), 1), "Edit Nick");
}

TEST_F(PortalForm, ARightClickSelectsTheRowOfEitherListAndShowsItsMenu)
{
    settings = saved();
    const auto check = [this](RowList& list, int column, const char* menu) {
        list.select(0);
        const QPoint at = list.visualRect(list.model()->index(1, column)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, list.viewport()->mapToGlobal(at));
        QApplication::sendEvent(list.viewport(), &event);
        EXPECT_EQ(list.currentRow(), 1);
        EXPECT_TRUE(window().popUpMenu(menu)->isVisible());
        window().popUpMenu(menu)->hide();
    };
    check(hubs(), 0, "mnuFirst");
    check(nicks(), 1, "mnuSecond");
}

TEST_F(PortalForm, SpaceSelectsANick)
{
    settings = saved();
    nicks().setFocus();
    nicks().clearSelection();
    nicks().selectionModel()->setCurrentIndex(nicks().model()->index(1, 1), QItemSelectionModel::NoUpdate);
    QTest::keyClick(&nicks(), Qt::Key_Space);
    EXPECT_EQ(nicks().currentRow(), 1);
    EXPECT_FALSE(isDirty(form()));
}

TEST_F(PortalForm, ServesItsTwoBorrowedMenus)
{
    settings = saved();
    QStringList titles;
    hubs().select(0);
    nicks().select(0);
    hubButton("NEW").setEnabled(true);
    for (const char* menu : {"mnuFirst", "mnuSecond"}) {
        for (auto* item : window().popUpMenu(menu)->actions()) {
            test::withModal([item] { item->trigger(); },
                            [&](QWidget& modal) {
                                titles.append(modal.windowTitle());
                                modal.close();
                            });
        }
    }
    EXPECT_EQ(titles,
              (QStringList{"Add Hub", "Delete Hub?", "Edit Hub", "Add Nick", "Delete Nick?", "Edit Nick"}));
}

TEST_F(PortalForm, ADatagramThatCannotBeReadIsToldWithItsNumber)
{
    const LiveLinks& links = form().findChild<PortalPart*>()->links();
    auto& datagrams = *links.findChild<UdpPort*>("UDPSock_1"); // it holds none
    int number = 0;
    QString description;
    try {
        datagrams.GetData();
    } catch (const SocketError& error) {
        number = error.number();
        description = QString::fromUtf8(error.what());
    }
    const auto boxes = answering(QMessageBox::Ok, [&datagrams] { emit datagrams.DataArrival(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, QString::number(number));
    EXPECT_EQ(boxes[0].text, "Error occured: \n" + description);
    EXPECT_FALSE(description.isEmpty());
    EXPECT_EQ(boxes[0].icon, QMessageBox::Warning);
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok);
}

TEST_F(PortalForm, ClosingItDirtyAsks)
{
    QTest::keyClicks(&field(3), "1");
    auto boxes = answering(QMessageBox::Cancel, [this] { form().parentWidget()->close(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Discard changes?");
    EXPECT_EQ(boxes[0].text, "Discard all unsaved changes?");
    EXPECT_EQ(field(3).text(), "1");
}

} // namespace
} // namespace quillfen
