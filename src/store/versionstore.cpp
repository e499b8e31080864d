#include "store/versionstore.h"

#include "store/versionentry.h"

#include <algorithm>
#include <charconv>

namespace quillfen {
namespace {

constexpr std::size_t nameDigits = 10;
constexpr unsigned numberLimit = 4'000'000'000; // there is always a next one
constexpr std::uintmax_t longestEntry = std::uintmax_t{4} << 20U;

std::string nameOf(unsigned number)
{
    const auto digits = std::to_string(number);
    return std::string(nameDigits - std::min(digits.size(), nameDigits), '0') + digits;
}

/// The number of an entry's file; nothing if it is none.
std::optional<unsigned> numberOf(const std::string& name)
{
    unsigned number = 0;
    std::from_chars(name.data(), name.data() + name.size(), number);
    return nameOf(number) == name && number < numberLimit ? std::optional(number) : std::nullopt;
}

/// Deletes what is of no more use; what can't be deleted does no harm.
void removeQuietly(FileStore& disk, const std::string& path)
{
    try {
        disk.remove(path);
    } catch (const StoreError&) {
        return;
    }
}

} // namespace

VersionStore::VersionStore(FileStore& disk, std::string folder) : m_disk(disk), m_folder(std::move(folder)) {}

std::string VersionStore::entryPath(unsigned number) const
{
    return m_folder + "/entries/" + nameOf(number);
}

std::string VersionStore::blobPath(const std::string& blob) const
{
    return m_folder + "/bytes/" + blob;
}

void VersionStore::makeFolders()
{
    for (const char* folder : {"/entries", "/bytes"})
        makeFolderAndThoseAbove(m_disk, m_folder + folder);
}

std::string VersionStore::keptBlob(const std::string& bytes)
{
    for (unsigned count = 0;; ++count) {
        auto name = blobName(bytes, count);
        const auto path = blobPath(name);
        const auto there = m_disk.read(path);
        if (!there && !m_disk.exists(path))
            m_disk.write(path, bytes);
        else if (there != bytes)
            continue; // damaged, or other bytes of the same hash
        return name;
    }
}

unsigned VersionStore::nextNumber() const
{
    unsigned number = m_entries.empty() ? 1 : m_entries.rbegin()->first + 1;
    while (m_disk.exists(entryPath(number))) // by something that is no entry
        ++number;
    return number;
}

unsigned VersionStore::keep(const Cause& cause, const Contents& files)
{
    makeFolders();
    VersionEntry entry;
    entry.time = utcText(now());
    entry.cause = cause;
    for (const auto& [told, bytes] : files)
        entry.files.push_back({told, bytes ? keptBlob(*bytes) : std::string()});
    refresh();
    entry.number = nextNumber();
    m_disk.write(entryPath(entry.number), composedEntry(entry));
    const unsigned number = entry.number;
    m_entries[number] = std::move(entry);
    dropOldest();
    return number;
}

void VersionStore::forget(unsigned number)
{
    const auto found = m_entries.find(number);
    if (found == m_entries.end())
        return;
    std::set<std::string> blobs;
    for (const KeptFile& file : found->second.files)
        blobs.insert(file.blob);
    removeQuietly(m_disk, entryPath(number));
    m_entries.erase(found);
    removeBlobsBut(usedBlobs(), blobs);
}

void VersionStore::readEntry(const std::string& name)
{
    const auto path = m_folder + "/entries/" + name;
    const auto number = numberOf(name);
    if (m_skipped.contains(name) || (number && m_entries.contains(*number)))
        return;
    if (!number) {
        m_skipped[name] = "isn't an entry";
        return;
    }
    if (m_disk.size(path).value_or(0) > longestEntry) {
        m_skipped[name] = "is too large for an entry";
        return;
    }
    const auto text = m_disk.read(path);
    auto entry = text ? parsedEntry(*number, *text) : std::nullopt;
    if (entry)
        m_entries[*number] = std::move(*entry);
    else
        m_skipped[name] = text ? "isn't an entry" : "can't be read";
}

void VersionStore::refresh()
{
    const auto names = m_disk.list(m_folder + "/entries");
    const std::set<std::string> there(names.begin(), names.end());
    std::erase_if(m_entries, [&there](const auto& entry) { return !there.contains(nameOf(entry.first)); });
    std::erase_if(m_skipped, [&there](const auto& entry) { return !there.contains(entry.first); });
    for (const std::string& name : names)
        readEntry(name);
}

VersionList VersionStore::entries()
{
    refresh();
    VersionList list;
    for (auto entry = m_entries.rbegin(); entry != m_entries.rend(); ++entry)
        list.entries.push_back(entry->second);
    for (const auto& [name, why] : m_skipped)
        list.skipped.push_back(name + ' ' + why);
    return list;
}

std::optional<std::string> VersionStore::bytes(const KeptFile& file) const
{
    const auto size = blobSize(file.blob);
    if (!size || m_disk.size(blobPath(file.blob)) != size)
        return std::nullopt;
    auto bytes = m_disk.read(blobPath(file.blob));
    return bytes && isBlobOf(*bytes, file.blob) ? bytes : std::nullopt;
}

void VersionStore::dropOldest()
{
    std::set<std::string> counted;
    std::vector<unsigned> old;
    std::uintmax_t size = 0;
    std::size_t count = 0;
    for (auto each = m_entries.rbegin(); each != m_entries.rend(); ++each) {
        const auto& [number, entry] = *each;
        for (const KeptFile& file : entry.files) {
            if (counted.insert(file.blob).second)
                size += blobSize(file.blob).value_or(0);
        }
        const std::size_t times = entry.cause.kind == Cause::Kind::Save ? 1 : 2;
        ++count;
        if (count > 1 && (count > entryLimit * times || size > byteLimit * times)) // the newest stays anyhow
            old.push_back(number);
    }
    for (const unsigned number : old)
        forget(number);
}

std::set<std::string> VersionStore::usedBlobs() const
{
    std::set<std::string> used;
    for (const auto& [number, entry] : m_entries) {
        for (const KeptFile& file : entry.files)
            used.insert(file.blob);
    }
    return used;
}

void VersionStore::removeBlobsBut(const std::set<std::string>& used, const std::set<std::string>& candidates)
{
    for (const std::string& blob : candidates) {
        if (!blob.empty() && !used.contains(blob))
            removeQuietly(m_disk, blobPath(blob));
    }
}

void VersionStore::sweep()
{
    refresh();
    if (!m_skipped.empty())
        return; // who knows what those tell of
    const auto names = m_disk.list(m_folder + "/bytes");
    removeBlobsBut(usedBlobs(), {names.begin(), names.end()});
}

} // namespace quillfen
