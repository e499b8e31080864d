#include "declarations/setting.h"

#include <utility>

namespace quillfen {

Setting flag(std::string key, std::string control, std::string label, std::string standard)
{
    return {Setting::Kind::Flag, std::move(key), std::move(control), std::move(label), std::move(standard)};
}

Setting number(std::string key, std::string control, std::string label, std::string standard, int minimum,
               int maximum)
{
    return {Setting::Kind::Number,
            std::move(key),
            std::move(control),
            std::move(label),
            std::move(standard),
            minimum,
            maximum};
}

Setting text(std::string key, std::string control, std::string label, std::string standard)
{
    return {Setting::Kind::Text, std::move(key), std::move(control), std::move(label), std::move(standard)};
}

Setting entry(std::string key, std::string control, std::string label, std::string standard,
              std::vector<std::string> entries)
{
    return {
        Setting::Kind::Entry, std::move(key), std::move(control), std::move(label), std::move(standard), 0, 0,
        std::move(entries)};
}

Setting options(std::string key, std::string control, std::string label, std::string standard,
                int firstOption, std::vector<std::string> entries)
{
    Setting setting =
        entry(std::move(key), std::move(control), std::move(label), std::move(standard), std::move(entries));
    setting.kind = Setting::Kind::Options;
    setting.firstOption = firstOption;
    return setting;
}

Setting profileFlags(std::string key, std::string control, std::string label)
{
    return {Setting::Kind::Profiles, std::move(key), std::move(control), std::move(label)};
}

Setting namedFlags(std::string key, std::string control, std::string label, std::vector<std::string> entries)
{
    Setting setting = profileFlags(std::move(key), std::move(control), std::move(label));
    setting.kind = Setting::Kind::Flags;
    setting.entries = std::move(entries);
    return setting;
}

Setting profileKey(std::string key, std::string control, std::string label)
{
    return {Setting::Kind::Profile, std::move(key), std::move(control), std::move(label), "0"};
}

Setting letter(std::string key, std::string control, std::string label, std::string standard,
               std::vector<std::string> entries)
{
    Setting setting =
        entry(std::move(key), std::move(control), std::move(label), std::move(standard), std::move(entries));
    setting.kind = Setting::Kind::Letter;
    return setting;
}

Setting hubProfileFlags(std::string key, std::string control, std::string label)
{
    Setting setting = profileFlags(std::move(key), std::move(control), std::move(label));
    setting.firstProfile = 1;
    return setting;
}

Setting namedTexts(std::string key, std::string control, std::string label, std::vector<std::string> entries,
                   std::vector<std::string> standards)
{
    Setting setting = namedFlags(std::move(key), std::move(control), std::move(label), std::move(entries));
    setting.kind = Setting::Kind::Texts;
    setting.standards = std::move(standards);
    return setting;
}

Setting constantRows(std::string key, std::vector<std::string> rows)
{
    Setting setting = namedFlags(std::move(key), {}, {}, std::move(rows));
    setting.kind = Setting::Kind::Rows;
    return setting;
}

Setting constantText(std::string key, std::string constant)
{
    Setting setting = text(std::move(key), {}, {}, {});
    setting.constant = std::move(constant);
    return setting;
}

bool hasControl(const Setting& setting)
{
    return setting.saved && !setting.constant && setting.kind != Setting::Kind::Rows;
}

Setting notSaved(Setting setting)
{
    setting.saved = false;
    return setting;
}

Setting savedAsTyped(Setting setting)
{
    setting.savedAsTyped = true;
    return setting;
}

Setting notRestored(Setting setting)
{
    setting.keptByRestore = true;
    return setting;
}

} // namespace quillfen
