#pragma once

#include "store/diskcalls.h"
#include "store/filestore.h"

namespace quillfen {

/// The real disk. What replaces a file is first written beside it and then takes its place, so that whatever
/// fails at whatever moment leaves the old bytes or the new ones. Only where a folder takes no new file, or a
/// file can't be replaced without changing who may use it, its bytes are written over the old.
class DiskStore : public FileStore
{
public:
    explicit DiskStore(Access access = Access::AsUsual);
    DiskStore(DiskCalls& calls, Access access = Access::AsUsual);

    std::optional<std::string> read(const std::string& path) const override;
    std::optional<std::uintmax_t> size(const std::string& path) const override;
    bool exists(const std::string& path) const override;

    /// Without what a crash left of our own.
    std::vector<std::string> list(const std::string& folder) const override;
    std::vector<std::string> listFolders(const std::string& folder) const override;

    /// One change without waiting for the disk: see sync().
    void write(const std::string& path, std::string_view bytes) override;
    void makeFolder(const std::string& path) override;
    void remove(const std::string& path) override;

    /// First writes all files aside and waits for the disk; only then each takes its place.
    void commit(const std::vector<StoreChange>& changes) override;

    void sync(const std::string& folder) override;

    /// Deletes what a crash left of our own in a folder and the folders below it, also where links lead. To
    /// be called where nobody else writes there.
    void sweep(const std::string& folder);

private:
    DiskCalls& m_calls;
    Access m_access;
};

} // namespace quillfen
