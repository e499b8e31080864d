#pragma once

#include "settings/filestore.h"

namespace quillfen {

/// The real disk.
class DiskStore : public FileStore
{
public:
    std::optional<std::string> read(const std::string& path) const override;
    void write(const std::string& path, std::string_view bytes) override;
    bool exists(const std::string& path) const override;
    void makeFolder(const std::string& path) override;
    std::vector<std::string> list(const std::string& folder) const override;
    void remove(const std::string& path) override;
};

} // namespace quillfen
