// What the hub script finds in the files that every form saved.
#include "advice/notloading.h"
#include "check/treecheck.h"
#include "lua/tablereader.h"
#include "settings/profiles.h"
#include "shell/kit/codepagetext.h"
#include "shell/sweep.h"
#include "support/lua.h"
#include "support/realluas/refusal.h"

namespace quillfen {
namespace {

using test::holds;
using test::knownToDiffer;
using test::LuaValues;

/// Lists that show what the file holds in another spelling, and how it spells it. Their forms' own tests hold
/// them to the bytes.
const std::map<std::string, std::set<QString>> spelledOtherwise = {
    {"Games~Numbers", {"lvwNumbers"}},                            // four numbers in one text
    {"Security~SearchSpy", {"lvwFiles"}},                         // an action by its first letter
    {"Security~ClientChecker", {"lvwClients"}},                   // both values in one text
    {"Security~ProfileRules~Rules", {"lvwPermissions"}},          // shares in bytes
    {"CustomiseUser~CustomRightClick", {"lvwCustomRightClicks"}}, // numbered rows, each with its tick
    {"Communication~MOTD", {"lvwMOTD"}},                          // two flags a profile
    // what is ticked is there, and what isn't is not
    {"Communication~RotatingMainMessage", {"lvwFiles"}},
    {"Communication~RotatingPrivateMessage", {"lvwFiles"}},
    {"General~Commands", {"lvwFiles"}},
    {"General~RightClicks", {"lvwFiles"}},
    {"General~Messages", {"lvwFiles"}},
};

std::vector<std::string> piecesOf(const std::string& name)
{
    std::vector<std::string> pieces(1);
    for (const char each : name) {
        if (each == '.')
            pieces.emplace_back();
        else
            pieces.back() += each;
    }
    return pieces;
}

/// The tables that were written, as the hub script sees them.
struct Seen
{
    std::vector<LuaValues> tables;
    std::set<QString> texts; ///< all their values, and their keys with and without the letter of their type

    void add(const LuaValues& table)
    {
        tables.push_back(table);
        for (const auto& [name, value] : table) {
            texts.insert(fromBytes(value));
            for (const std::string& piece : piecesOf(name)) {
                texts.insert(fromBytes(piece));
                texts.insert(fromBytes(piece).mid(1));
            }
        }
    }

    /// How many cells of tables by profile and target are 1.
    int allowed() const
    {
        int count = 0;
        for (const LuaValues& table : tables) {
            for (const auto& [name, value] : table) {
                const auto pieces = piecesOf(name);
                bool byProfile = false;
                if (pieces.size() == 3)
                    fromBytes(pieces[1]).toInt(&byProfile);
                count += byProfile && value == "1" ? 1 : 0;
            }
        }
        return count;
    }

    bool hasText(const QString& text) const { return texts.contains(text); }

    /// Whether some table has each of these values, its keys behind the table's name.
    bool hasTable(const LuaValues& rows) const
    {
        return std::any_of(tables.begin(), tables.end(), [&rows](const LuaValues& table) {
            return std::any_of(table.begin(), table.end(), [&](const auto& entry) {
                const std::string& first = rows.begin()->first;
                if (!entry.first.ends_with('.' + first))
                    return false;
                const std::string name = entry.first.substr(0, entry.first.size() - first.size());
                return std::all_of(rows.begin(), rows.end(), [&](const auto& row) {
                    const auto found = table.find(name + row.first);
                    return found != table.end() && found->second == row.second;
                });
            });
        });
    }
};

class HubScript : public test::SweepOfAHub
{
protected:
    /// What was written since that call of the store.
    Seen seenSince(std::size_t call) const
    {
        Seen seen;
        for (; call < hub.store.log.size(); ++call) {
            const std::string path = hub.store.log[call].substr(hub.store.log[call].find(' ') + 1);
            if (!path.ends_with(".tbl") || notLoadingOnceSaved().contains(path.substr(hub.root.size() + 1)))
                continue;
            seen.add(test::luaValues(hub.store.files.at(path)));
        }
        return seen;
    }

    /// The flags of a list of ticks as a table holds them: by profile key where the rows are profiles, else
    /// by the rows' names.
    LuaValues flagsOf(const RowList& list) const
    {
        const auto& names = hub.profiles.names();
        const std::size_t first = list.rows().front().cells[0] == names.front() ? 0 : 1;
        const bool areProfiles = list.rows().size() == names.size() - first &&
                                 (first == 0 || list.rows().front().cells[0] == names.at(1));
        LuaValues flags;
        for (std::size_t row = 0; row < list.rows().size(); ++row) {
            const CellRow& shown = list.rows()[row];
            flags[areProfiles ? HubProfiles::key(first + row) : 'b' + shown.cells[0]] =
                shown.checked ? "1" : "0";
        }
        return flags;
    }

    /// A row of a profile bears its name, and its table the profile's key.
    bool isProfile(const QString& cell) const
    {
        const auto& names = hub.profiles.names();
        return std::find(names.begin(), names.end(), toBytes(cell)) != names.end();
    }

    static int rowsOf(const ListView& list, const QStringList& answers)
    {
        int count = 0;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            count += answers.contains(list.model()->index(row, 3).data().toString()) ? 1 : 0;
        return count;
    }

    /// Whether a list's first column has ticks.
    static bool hasTicks(const ListView& list)
    {
        return (list.model()->index(0, 0).flags() & Qt::ItemIsUserCheckable) != 0;
    }
};

INSTANTIATE_TEST_SUITE_P(Profiles, HubScript, testing::Values(1, 5, 64),
                         [](const auto& each) { return "Of" + std::to_string(each.param); });

TEST_P(HubScript, SeesTheNumbersAndTextsThatEveryFormShows)
{
    int fields = 0;
    int cells = 0;
    int flags = 0;
    int grids = 0;
    forEachForm([&](const std::string& key, EditorForm& form) {
        changeEverything(form);
        const std::size_t before = hub.store.log.size();
        if (form.isDirty())
            useModals([&form] { button(form, "SAVE").trigger(); });
        Seen seen;
        ASSERT_NO_THROW(seen = seenSince(before));
        if (seen.tables.empty())
            return;
        for (const auto* edit : form.findChildren<QLineEdit*>()) {
            const bool inCombo = qobject_cast<QComboBox*>(edit->parentWidget());
            if (inCombo || holds(knownToDiffer, key, edit->objectName()))
                continue;
            ++fields;
            EXPECT_TRUE(seen.hasText(edit->text()))
                << edit->objectName().toStdString() << " shows " << edit->text().toStdString();
        }
        for (const auto* list : form.findChildren<RowList*>()) {
            if (list->isEmpty() || holds(knownToDiffer, key, list->objectName()) ||
                holds(spelledOtherwise, key, list->objectName()))
                continue;
            if (hasTicks(*list)) {
                ++flags;
                EXPECT_TRUE(seen.hasTable(flagsOf(*list))) << list->objectName().toStdString();
                continue;
            }
            for (const QString& row : shown(*list)) {
                for (const QString& cell : row.split('|', Qt::SkipEmptyParts)) {
                    ++cells;
                    EXPECT_TRUE(seen.hasText(cell) || isProfile(cell))
                        << list->objectName().toStdString() << " shows " << cell.toStdString();
                }
            }
        }
        for (const auto* list : form.findChildren<ListView*>()) {
            if (qobject_cast<const RowList*>(list))
                continue;
            ++grids;
            EXPECT_EQ(seen.allowed(), rowsOf(*list, {"Yes", "True"})) << list->objectName().toStdString();
        }
    });
    EXPECT_EQ(grids, 6); // those of the archive are not among the files that load
    EXPECT_GT(fields, 100);
    EXPECT_GT(cells, 100);
    EXPECT_GT(flags, 30);
}

TEST_P(HubScript, LoadsTheTreeThatEveryFormSavedButForTheFilesThatAreKnownNotTo)
{
    forEachForm([&](const std::string&, EditorForm& form) {
        changeEverything(form);
        if (form.isDirty())
            useModals([&form] { button(form, "SAVE").trigger(); });
    });
    for (const auto& [path, bytes] : hub.store.files) {
        if (!path.ends_with(".tbl"))
            continue;
        const auto reading = lua::readTables(bytes, lua::Version::Lua51);
        EXPECT_EQ(reading.loads(), !test::lua51Refusal(bytes)) << path;
        EXPECT_EQ(lua::readTables(bytes, lua::Version::Lua53).loads(), !test::lua53Refusal(bytes)) << path;
        const auto known = notLoadingOnceSaved().find(path.substr(hub.root.size() + 1));
        if (known == notLoadingOnceSaved().end()) {
            EXPECT_NO_THROW(test::luaValues(bytes)) << path;
            continue;
        }
        EXPECT_THROW(test::luaValues(bytes), std::runtime_error) << path << " loads by now";
        EXPECT_EQ(words(reading.fault), words(known->second)) << path;
    }
    for (const Finding& finding : checkTree(hub.files))
        ADD_FAILURE() << finding.file << ':' << finding.line << ": " << finding.words;
}

} // namespace
} // namespace quillfen
