#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <sstream>
#include <string>

namespace quillfen::test {

/// A folder on the disk for one test, which goes with it.
class DiskFolder
{
public:
    DiskFolder()
    {
        const auto temporary = std::filesystem::temp_directory_path();
        std::random_device random; // another run of the tests has a folder of its own
        do
            m_path = temporary / ("quillfen-test-" + std::to_string(random()));
        while (!std::filesystem::create_directory(m_path));
    }
    DiskFolder(const DiskFolder&) = delete;
    DiskFolder& operator=(const DiskFolder&) = delete;
    ~DiskFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::string path() const { return m_path.generic_string(); }

    /// Every file below the folder by its path from there, with its bytes.
    std::map<std::string, std::string> files() const
    {
        std::map<std::string, std::string> all;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(m_path)) {
            if (entry.is_regular_file())
                all[entry.path().lexically_relative(m_path).generic_string()] = bytesOf(entry.path());
        }
        return all;
    }

private:
    static std::string bytesOf(const std::filesystem::path& path)
    {
        std::ostringstream bytes;
        bytes << std::ifstream(path, std::ios::binary).rdbuf();
        return bytes.str();
    }

    std::filesystem::path m_path;
};

} // namespace quillfen::test
