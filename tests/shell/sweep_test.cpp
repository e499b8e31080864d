// Every form of the program on good trees: opened, changed all over, saved, opened again.
#include "functions/catalogue.h"
#include "shell/sweep.h"

namespace quillfen {
namespace {

using test::expectSame;
using test::Shown;
using test::SweepOfAHub;
using test::writesAtOnce;

INSTANTIATE_TEST_SUITE_P(Profiles, SweepOfAHub, testing::Values(1, 5, 64),
                         [](const auto& each) { return "Of" + std::to_string(each.param); });

TEST_P(SweepOfAHub, EveryFormShowsWhatItSaved)
{
    std::size_t count = 0;
    forEachForm([&](const std::string& key, EditorForm& form) {
        ++count;
        EXPECT_FALSE(isDirty(form));
        changeEverything(form);
        if (form.isDirty()) {
            EXPECT_EQ(useModals([&form] { button(form, "SAVE").trigger(); }), QStringList());
        }
        EXPECT_FALSE(isDirty(form));
        const Shown before = shownBy(form);
        EXPECT_TRUE(close(form));
        auto& again = open(key.c_str());
        expectSame(key, before, shownBy(again));
        EXPECT_FALSE(isDirty(again));
    });
    EXPECT_EQ(count, formCatalogue().size());
}

TEST_P(SweepOfAHub, EveryFormDiscardsToWhatItShowedAndAsksBeforeItCloses)
{
    forEachForm([&](const std::string& key, EditorForm& form) {
        const Shown before = shownBy(form);
        changeEverything(form);
        if (!form.isDirty())
            return;
        EXPECT_FALSE(close(form, QMessageBox::Cancel)) << "a Cancel keeps it open";
        EXPECT_TRUE(form.isDirty());
        EXPECT_EQ(useModals([&form] { button(form, "DISCARD").trigger(); }).size(), 1);
        if (writesAtOnce.count(key) == 0)
            expectSame(key, before, shownBy(form), true);
    });
}

TEST_P(SweepOfAHub, EveryListFiltersCopiesAndPastes)
{
    int lists = 0;
    int taking = 0;
    forEachForm([&](const std::string&, EditorForm& form) {
        for (auto* list : form.findChildren<ListView*>()) {
            SCOPED_TRACE(list->objectName().toStdString());
            if (list->model()->rowCount() == 0 && list->parentWidget()->findChild<QToolBar*>())
                changeRows(*list); // gives it a row where it has none yet
            if (list->model()->rowCount() == 0 || !list->isEnabled())
                continue;
            ++lists;
            filterAndShowAll(*list);
            if (copyAndPaste(*list) == Pasted::Taken)
                ++taking;
        }
    });
    EXPECT_GT(lists, 100);
    EXPECT_GT(taking, 30);
}

TEST_P(SweepOfAHub, EveryFormRestoresWithoutWriting)
{
    forEachForm([&](const std::string&, EditorForm& form) {
        if (!find<QToolBar>(form, "tlbFormToolbar").findChild<QAction*>("RESTORE"))
            return;
        const auto files = hub.store.files;
        EXPECT_EQ(useModals([&form] { button(form, "RESTORE").trigger(); }).size(), 1);
        EXPECT_TRUE(isDirty(form));
        EXPECT_TRUE(hub.store.files == files);
        EXPECT_EQ(useModals([&form] { button(form, "SAVE").trigger(); }).size(), 0);
    });
}

} // namespace
} // namespace quillfen
