#pragma once

#include "store/diskcalls.h"

#include <cerrno>
#include <set>
#include <system_error>

namespace quillfen::test {

/// The platform's calls, counted. The one of a number can fail, or be where the process dies: from there on
/// none has any effect. Writes can be short. Whether each file was closed once is seen at the end.
class FaultyCalls : public DiskCalls
{
public:
    int count = 0;
    int failingCall = -1; ///< from 0
    int reason = EIO;
    bool dies = false;                ///< at that call, and with a write in the midst of its bytes
    std::size_t mostBytes = SIZE_MAX; ///< that one write takes

    bool wasReached() const { return failingCall >= 0 && count > failingCall; }
    bool closedEachOnce() const { return m_open.empty() && !m_closedAnother; }
    bool replacedByOpenOne() const { return m_replacedByOpenOne; }

    std::string followed(const std::string& path) override
    {
        return calling([&] { return DiskCalls::followed(path); });
    }
    FileFacts facts(const std::string& path) override
    {
        return calling([&] { return DiskCalls::facts(path); });
    }
    void requireWritable(const std::string& file) override
    {
        calling([&] { DiskCalls::requireWritable(file); });
    }
    Handle create(const std::string& path, Access access) override
    {
        return opened(calling([&] { return DiskCalls::create(path, access); }));
    }
    Handle open(const std::string& path) override
    {
        return opened(calling([&] { return DiskCalls::open(path); }));
    }
    std::size_t write(Handle file, std::string_view bytes) override
    {
        if (count == failingCall && dies)
            DiskCalls::write(file, bytes.substr(0, bytes.size() / 2));
        return calling([&] { return DiskCalls::write(file, bytes.substr(0, mostBytes)); });
    }
    void rewind(Handle file) override
    {
        calling([&] { DiskCalls::rewind(file); });
    }
    void endHere(Handle file) override
    {
        calling([&] { DiskCalls::endHere(file); });
    }
    void giveRights(Handle file, const FileFacts& facts) override
    {
        calling([&] { DiskCalls::giveRights(file, facts); });
    }
    void sync(Handle) override
    {
        calling([] {}); // no test pulls the plug
    }
    void close(Handle file) override
    {
        if (m_open.erase(file) == 0)
            m_closedAnother = true;
        else
            DiskCalls::close(file); // as the end of the process would
        calling([] {});
    }
    void replace(const std::string& aside, const std::string& target) override
    {
        m_replacedByOpenOne = m_replacedByOpenOne || !m_open.empty();
        calling([&] { DiskCalls::replace(aside, target); });
    }
    void remove(const std::string& file) override
    {
        calling([&] { DiskCalls::remove(file); });
    }
    void makeFolder(const std::string& folder, Access access) override
    {
        calling([&] { DiskCalls::makeFolder(folder, access); });
    }
    void removeFolder(const std::string& folder) override
    {
        calling([&] { DiskCalls::removeFolder(folder); });
    }
    void syncFolder(const std::string&) override
    {
        calling([] {});
    }
    void syncDisk(const std::string&) override
    {
        calling([] {});
    }

private:
    Handle opened(Handle file)
    {
        m_open.insert(file);
        return file;
    }

    template <typename Call>
    auto calling(const Call& call) -> decltype(call())
    {
        const int number = count++;
        if (failingCall >= 0 && (dies ? number >= failingCall : number == failingCall))
            throw std::system_error(reason, std::generic_category());
        return call();
    }

    std::set<Handle> m_open;
    bool m_closedAnother = false;
    bool m_replacedByOpenOne = false;
};

} // namespace quillfen::test
