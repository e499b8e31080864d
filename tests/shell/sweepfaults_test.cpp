// Every form of the program where the disk fails, and on bad trees.
#include "shell/sweep.h"
#include "support/lua.h"

#include <algorithm>
#include <random>

namespace quillfen {
namespace {

using test::Sweep;

class SweepOfFaults : public Sweep
{
};

TEST_F(SweepOfFaults, AWriteThatFailsAtAnyPlaceLeavesTheFormOpenAndDirty)
{
    forEachForm([&](const std::string&, EditorForm& form) {
        changeEverything(form);
        if (!form.isDirty())
            return;
        for (int call = 0;; ++call) {
            const auto files = hub.store.files;
            const std::size_t done = hub.store.log.size();
            hub.store.failingCall = static_cast<int>(done) + call;
            const auto boxes = useModals([&form] { button(form, "SAVE").trigger(); });
            hub.store.failingCall = -1;
            if (boxes.isEmpty())
                return; // it made no more than so many calls
            EXPECT_EQ(boxes.size(), 1);
            EXPECT_TRUE(boxes[0].contains("No space left on device")) << boxes[0].toStdString();
            EXPECT_TRUE(isDirty(form));
            std::set<std::string> written;
            for (std::size_t at = done; at < hub.store.log.size(); ++at)
                written.insert(hub.store.log[at].substr(hub.store.log[at].find(' ') + 1));
            for (const auto& [path, bytes] : files)
                EXPECT_TRUE(written.count(path) > 0 || hub.store.files.at(path) == bytes) << path;
        }
    });
}

TEST_F(SweepOfFaults, AFolderThatWentUnderAnOpenFormIsToldAndLosesNothing)
{
    forEachForm([&](const std::string&, EditorForm& form) {
        changeEverything(form);
        if (!form.isDirty())
            return;
        const auto folders = hub.store.folders;
        const auto files = hub.store.files;
        hub.store.folders = {"/hub", "/hub/cfg", "/hub/scripts", hub.script};
        hub.store.files.clear();
        const auto boxes = useModals([&form] { button(form, "SAVE").trigger(); });
        EXPECT_EQ(boxes.size(), 1);
        EXPECT_TRUE(isDirty(form));
        EXPECT_TRUE(hub.store.files.empty());
        hub.store.folders = folders;
        hub.store.files = files;
        EXPECT_EQ(useModals([&form] { button(form, "SAVE").trigger(); }), QStringList());
        EXPECT_FALSE(isDirty(form));
    });
}

TEST_F(SweepOfFaults, AFileThatWasReplacedWhileItsFormWasOpenIsOverwrittenBySaveAndShownByDiscard)
{
    auto& form = open("Games~SlotMachine");
    std::string& file = hub.file("Games/SlotMachine/SlotMachineSettings.tbl");
    file = "tSlotMachineSettings = {\r\n\tiCredit = 77,\r\n}\r\n";
    useModals([&form] { button(form, "DISCARD").trigger(); });
    EXPECT_EQ(find<QLineEdit>(form, "txtUpDown(0)").text(), "77");
    file = "something else";
    find<NumberBox>(form, "updUpDown(0)").stepBy(1);
    button(form, "SAVE").trigger();
    EXPECT_EQ(test::luaValues(file).at("tSlotMachineSettings.iCredit"), "82");
}

/// Makes something else of a file's bytes.
struct Damage
{
    const char* name;
    std::function<std::string(const std::string&)> of;
};

void PrintTo(const Damage& damage, std::ostream* stream)
{
    *stream << damage.name;
}

std::string junk(const std::string& bytes)
{
    std::mt19937 random(static_cast<unsigned>(bytes.size()));
    std::string result(4096, ' ');
    for (char& each : result)
        each = static_cast<char>(random() & 0xFF);
    return result;
}

std::string shuffledLines(const std::string& bytes)
{
    std::vector<std::string> lines;
    for (std::size_t from = 0; from < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', from), bytes.size() - 1) + 1;
        lines.push_back(bytes.substr(from, end - from));
        from = end;
    }
    std::shuffle(lines.begin(), lines.end(), std::mt19937(static_cast<unsigned>(bytes.size())));
    std::string result;
    for (const std::string& line : lines)
        result += line;
    return result;
}

class SweepOfDamage : public Sweep, public testing::WithParamInterface<Damage>
{
};

INSTANTIATE_TEST_SUITE_P(
    Kinds, SweepOfDamage,
    testing::Values(Damage{"Empty", [](const std::string&) { return std::string(); }},
                    Damage{"Cut", [](const std::string& bytes) { return bytes.substr(0, bytes.size() / 2); }},
                    Damage{"Junk", junk}, Damage{"Shuffled", shuffledLines}),
    [](const auto& each) { return std::string(each.param.name); });

TEST_P(SweepOfDamage, EveryFormOpensCleanAndCanBeSavedUnlessItsLoadStopped)
{
    forEachForm([&](const std::string& key, EditorForm&) {
        EXPECT_TRUE(close(find<EditorForm>(window(), formName(QString::fromStdString(key)))));
        hub.store.damage = GetParam().of;
        EditorForm* form = nullptr;
        const QStringList told = useModals([&] { form = &open(key.c_str()); });
        hub.store.damage = nullptr;
        EXPECT_FALSE(isDirty(*form));
        changeEverything(*form);
        if (form->isDirty()) {
            const QStringList refused = useModals([form] { button(*form, "SAVE").trigger(); });
            EXPECT_EQ(refused.size(), told.size()) << "what a load couldn't show isn't saved";
        }
    });
}

TEST_F(Sweep, OnAnEmptySettingsFolderEveryFormOpensAndTellsThatItCannotSave)
{
    const std::string below = hub.root + '/';
    std::erase_if(hub.store.files, [&](const auto& file) { return file.first.starts_with(below); });
    std::erase_if(hub.store.folders, [&](const auto& folder) { return folder.starts_with(below); });
    forEachForm([&](const std::string& key, EditorForm& form) {
        EXPECT_FALSE(isDirty(form));
        changeEverything(form);
        if (!form.isDirty())
            return;
        const auto boxes = useModals([&form] { button(form, "SAVE").trigger(); });
        if (key == "Communication~HubEmail" || key == "Communication~Portal")
            return; // whose saves make their folders
        EXPECT_EQ(boxes.size(), 1);
        EXPECT_TRUE(isDirty(form));
    });
}

TEST_F(Sweep, WithFoldersInTheFilesPlacesEveryFormOpensAndTellsThatItCannotSave)
{
    const std::string below = hub.root + '/';
    for (const auto& [path, bytes] : hub.store.files) {
        if (path.starts_with(below))
            hub.store.folders.insert(path);
    }
    std::erase_if(hub.store.files, [&](const auto& file) { return file.first.starts_with(below); });
    forEachForm([&](const std::string&, EditorForm& form) {
        EXPECT_FALSE(isDirty(form));
        changeEverything(form);
        if (form.isDirty())
            useModals([&form] { button(form, "SAVE").trigger(); });
    });
}

TEST_F(Sweep, FilesOfTenMegabytesOpenInTheFormsOfEachDesign)
{
    hub.store.damage = [](const std::string& bytes) {
        constexpr std::size_t size = 10U << 20U;
        std::string result;
        result.reserve(size + bytes.size());
        while (result.size() < size)
            result += bytes.empty() ? std::string("\r\n") : bytes;
        return result;
    };
    for (const char* key : {"General~Settings", "General~Bots", "Games~Trivia~Questions", "Security~Report",
                            "UserActions~Jokes", "Communication~TopicChanger"}) {
        SCOPED_TRACE(key);
        auto& form = open(key);
        EXPECT_FALSE(isDirty(form));
        EXPECT_TRUE(close(form));
    }
}

} // namespace
} // namespace quillfen
