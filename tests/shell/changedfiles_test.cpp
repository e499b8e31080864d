// Files that change on the disk under an open form.
#include "shell/kit/numberbox.h"
#include "shell/kit/rowlist.h"
#include "support/formtest.h"

#include <QLineEdit>

namespace quillfen {
namespace {

class ChangedFiles : public test::FormTest
{
protected:
    std::string& file() { return hub.file("Games/SlotMachine/SlotMachineSettings.tbl"); }

    std::string otherBytes()
    {
        number(form).setText("7");
        button(form, "SAVE").trigger();
        const std::string bytes = file();
        file() = mine;
        form.loadAnew();
        return bytes;
    }

    static NumberBox& number(EditorForm& form) { return find<NumberBox>(form, "updUpDown(0)"); }

    EditorForm& form = open("Games~SlotMachine");
    const std::string mine = file();
    const std::string other = otherBytes(); ///< of another program: the same with a 7
};

TEST_F(ChangedFiles, AreLoadedByACleanForm)
{
    file() = other;
    form.lookAtFiles();
    EXPECT_EQ(number(form).text(), "7");
    EXPECT_FALSE(isDirty(form));
    EXPECT_EQ(secondPanel(form).text(), "");
}

TEST_F(ChangedFiles, AreToldByADirtyFormUntilItReadsOrReplacesThem)
{
    for (const char* key : {"SAVE", "DISCARD"}) {
        file() = mine;
        form.loadAnew();
        number(form).setText("3");
        ASSERT_TRUE(isDirty(form));
        file() = other;
        form.lookAtFiles();
        EXPECT_EQ(number(form).text(), "3");
        EXPECT_TRUE(isDirty(form));
        EXPECT_EQ(secondPanel(form).text(),
                  "SlotMachineSettings.tbl changed on disk; SAVE replaces it, DISCARD reads it");
        test::answering(QMessageBox::Ok, [this, key] { button(form, key).trigger(); });
        EXPECT_EQ(secondPanel(form).text(), "") << key;
        EXPECT_EQ(number(form).text(), QString(key) == "SAVE" ? "3" : "7");
        form.lookAtFiles();
        EXPECT_EQ(secondPanel(form).text(), "") << key;
    }
}

TEST_F(ChangedFiles, ThatHoldTheSameAgainAreNotTold)
{
    number(form).setText("3");
    file() = other;
    form.lookAtFiles();
    ASSERT_NE(secondPanel(form).text(), "");
    file() = mine;
    form.lookAtFiles();
    EXPECT_EQ(secondPanel(form).text(), "");
}

TEST_F(ChangedFiles, OfAFormWhoseLoadAddsAreToldAndNotRead)
{
    auto& questions = open("Games~Trivia~Questions");
    const auto rows = shown(find<RowList>(questions, "lvwQuestionFiles"));
    hub.file("Games/Trivia/TriviaQuestionFiles.tbl") += " ";
    questions.lookAtFiles();
    EXPECT_EQ(shown(find<RowList>(questions, "lvwQuestionFiles")), rows);
    EXPECT_TRUE(secondPanel(questions).text().startsWith("TriviaQuestionFiles.tbl changed on disk;"))
        << secondPanel(questions).text().toStdString();
}

TEST_F(ChangedFiles, AFormsOwnSaveIsNoChange)
{
    number(form).setText("9");
    button(form, "SAVE").trigger();
    number(form).setText("10");
    form.lookAtFiles();
    EXPECT_EQ(secondPanel(form).text(), "");
    EXPECT_EQ(number(form).text(), "10");
}

} // namespace
} // namespace quillfen
