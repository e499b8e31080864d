#include "shell/kit/rowlist.h"
#include "support/formtest.h"

#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>

namespace quillfen {
namespace {

using test::answering;

constexpr const char* threeArticles =
    "tNews = {\r\n\t[3] = \"d3|star|Third|Three\",\r\n"
    "\t[7] = \"d7|bolt|Seventh|Seven\",\r\n\t[8] = \"d8|bolt|Eighth|<b>8</b>\",\r\n}\r\n";

class NewsForm : public test::FormTest
{
protected:
    NewsForm() { news = threeArticles; }

    EditorForm& form() { return open("General~News"); }
    static RowList& list(EditorForm& form) { return find<RowList>(form, "lvwNews"); }

    QList<test::SeenBox> pressed(const char* key, QMessageBox::StandardButton answer)
    {
        auto& action = button(form(), key, "tlbListview");
        return answering(answer, [&action] { action.trigger(); });
    }

    std::string& news = hub.store.files["/hub/scripts/Morvaleth's Scripts/News/News.tbl"];
    std::string& settings = hub.store.files["/hub/scripts/Morvaleth's Scripts/News/NewsSettings.tbl"];
};

TEST_F(NewsForm, ShowsTheArchiveInItsColumns)
{
    auto& shownForm = form();
    EXPECT_EQ(shownForm.objectName(), "frmGeneralNews");
    EXPECT_EQ(shownForm.windowTitle(), "General ~ News");
    QStringList captions;
    for (int column = 0; column < 5; ++column)
        captions.append(list(shownForm).model()->headerData(column, Qt::Horizontal).toString());
    EXPECT_EQ(captions, (QStringList{"Date", "News Headline", "News Story", "Symbol", "News ID"}));
    EXPECT_EQ(shown(list(shownForm)),
              (QStringList{"d3|Third|Three|star|3", "d7|Seventh|Seven|bolt|7", "d8|Eighth|<b>8</b>|bolt|8"}));
    EXPECT_FALSE(isDirty(shownForm));
}

TEST_F(NewsForm, HasTheButtonsOfAnEditorAndOfItsList)
{
    QStringList keys;
    for (auto* action : find<QToolBar>(form(), "tlbListview").actions())
        keys.append(action->objectName());
    EXPECT_EQ(keys, (QStringList{"DELETE", "EDIT"}));
    for (const char* key : {"SAVE", "DISCARD", "RESTORE"})
        button(form(), key);
}

TEST_F(NewsForm, EditShowsTheStoryUnderDateAndHeadline)
{
    list(form()).select(2);
    const auto boxes = pressed("EDIT", QMessageBox::Ok);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "d8 - Eighth");
    EXPECT_EQ(boxes[0].text, "<b>8</b>");
    EXPECT_EQ(boxes[0].format, Qt::PlainText);
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok);
    EXPECT_EQ(boxes[0].icon, QMessageBox::NoIcon);
    EXPECT_FALSE(isDirty(form()));
}

TEST_F(NewsForm, AStoryOfAnyLengthScrollsAndNeverPassesTheScreen)
{
    for (const QString& story : {QString("word ").repeated(2000), QString(1 << 20, 'x')}) {
        news = "tNews = {\r\n\t[1] = \"d|s|" + std::string(5000, 'h') + '|' + story.toStdString() +
               ".\",\r\n}\r\n";
        auto& shownForm = form();
        list(shownForm).select(0);
        test::withModal([&] { button(shownForm, "EDIT", "tlbListview").trigger(); },
                        [&](QWidget& modal) {
                            auto* box = qobject_cast<QMessageBox*>(&modal);
                            EXPECT_EQ(box->text(), story + '.');
                            EXPECT_EQ(box->windowTitle().size(), 1001) << "a title of one line";
                            EXPECT_TRUE(box->windowTitle().startsWith("d - hhh"));
                            EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
                            EXPECT_LE(box->height(), box->screen()->availableSize().height());
                            EXPECT_LE(box->width(), box->screen()->availableSize().width());
                            auto& view = find<QPlainTextEdit>(*box, {});
                            EXPECT_EQ(view.toPlainText().remove('\n'), story + '.');
                            EXPECT_TRUE(view.isReadOnly());
                            EXPECT_GT(view.verticalScrollBar()->maximum(), 0);
                            box->button(QMessageBox::Ok)->click();
                        });
        EXPECT_FALSE(isDirty(shownForm));
        close(shownForm);
    }
}

TEST_F(NewsForm, ALongTextIsCutForShowOnlyAndSavedWhole)
{
    const std::string text(1 << 20, 'x');
    const std::string row = "\t[9] = \"d|s|" + text + '|' + text + "\",\r\n";
    news = "tNews = {\r\n\t[3] = \"d3|star|Third|Three\",\r\n" + row + "}\r\n";
    for (const int column : {1, 2})
        EXPECT_EQ(list(form()).model()->index(1, column).data().toString(),
                  QString(1000, 'x') + QChar(0x2026));
    list(form()).select(0);
    pressed("DELETE", QMessageBox::Ok);
    button(form(), "SAVE").trigger();
    EXPECT_TRUE(news == "tNews = {\r\n" + row + "}\r\n");
}

TEST_F(NewsForm, ADoubleClickShowsTheArticleToo)
{
    auto& rows = list(form());
    const auto boxes = answering(QMessageBox::Ok, [&] { doubleClickRow(rows, 0); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "d3 - Third");
}

TEST_F(NewsForm, DeleteAsksFirst)
{
    list(form()).select(1);
    const auto boxes = pressed("DELETE", QMessageBox::Cancel);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].title, "Delete News Article?");
    EXPECT_EQ(boxes[0].text, "Do you really want to delete this News Article?");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_EQ(shown(list(form())).size(), 3);
    EXPECT_FALSE(isDirty(form()));
}

TEST_F(NewsForm, ADeletedArticleIsSavedAwayAndTheLastNumberLeftAlone)
{
    settings = "tNewsSettings = { \r\n\tiLastID = 8,\r\n}\r\n";
    const std::string before = settings;
    list(form()).select(2);
    pressed("DELETE", QMessageBox::Ok);
    EXPECT_TRUE(isDirty(form()));
    EXPECT_EQ(news, threeArticles);
    button(form(), "SAVE").trigger();
    EXPECT_FALSE(isDirty(form()));
    EXPECT_EQ(news,
              "tNews = {\r\n\t[3] = \"d3|star|Third|Three\",\r\n\t[7] = \"d7|bolt|Seventh|Seven\",\r\n}\r\n");
    EXPECT_EQ(settings, before);
}

TEST_F(NewsForm, SavingUnchangedGivesTheSameBytes)
{
    list(form()).select(0);
    pressed("DELETE", QMessageBox::Ok);
    answering(QMessageBox::Ok, [this] { button(form(), "DISCARD").trigger(); });
    EXPECT_EQ(shown(list(form())).size(), 3);
    EXPECT_FALSE(isDirty(form()));
    answering(QMessageBox::Ok, [this] { button(form(), "RESTORE").trigger(); });
    EXPECT_EQ(shown(list(form())).size(), 3) << "there are no articles by default, and none are lost";
    EXPECT_TRUE(isDirty(form()));
    button(form(), "SAVE").trigger();
    EXPECT_EQ(news, threeArticles);
}

TEST_F(NewsForm, WithoutArticlesItsButtonsAreDark)
{
    news.clear();
    EXPECT_FALSE(button(form(), "DELETE", "tlbListview").isEnabled());
    EXPECT_FALSE(button(form(), "EDIT", "tlbListview").isEnabled());
}

TEST_F(NewsForm, AFailedWriteIsToldAndLeavesTheFormDirty)
{
    list(form()).select(0);
    pressed("DELETE", QMessageBox::Ok);
    hub.store.failingCall = static_cast<int>(hub.store.log.size());
    const auto boxes = answering(QMessageBox::Ok, [this] { button(form(), "SAVE").trigger(); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].text.contains("News.tbl"));
    EXPECT_TRUE(isDirty(form()));
}

} // namespace
} // namespace quillfen
