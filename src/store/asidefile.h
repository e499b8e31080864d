#pragma once

#include "store/diskcalls.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillfen {

/// Whether a name is one of ours for a file that is to take another's place.
bool isAsideName(std::string_view name);

/// Whether a write waits until its bytes would outlast a power cut.
enum class Durable
{
    Now,
    Later
};

/// A new file beside its target, whose place it takes when it is complete. It goes with its object unless it
/// took that place. All throw std::system_error.
class AsideFile
{
public:
    AsideFile(DiskCalls& calls, std::string target);
    AsideFile(const AsideFile&) = delete;
    AsideFile& operator=(const AsideFile&) = delete;
    ~AsideFile();

    /// Makes the file with all its bytes. It gets the rights of the one that it will replace, if there is
    /// one.
    void fill(std::string_view bytes, const FileFacts& replaced, Access access, Durable durable);

    void takePlace();

private:
    void makeBeside(Access access);
    void close();

    DiskCalls& m_calls;
    std::string m_target;
    std::string m_path; ///< empty while there is no file
    DiskCalls::Handle m_file = noFile;

    static constexpr DiskCalls::Handle noFile = -1;
};

/// Writes over the bytes of a file that is there, and puts the old ones back if that fails.
void writeInPlace(DiskCalls& calls, const std::string& file, std::string_view bytes,
                  const std::optional<std::string>& old, Durable durable);

void writeToDevice(DiskCalls& calls, const std::string& device, std::string_view bytes);

/// The folder in which a path lies.
std::string folderOf(const std::string& path);

} // namespace quillfen
