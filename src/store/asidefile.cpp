#include "store/asidefile.h"

#include "store/nativepath.h"

#include <atomic>
#include <random>
#include <system_error>

namespace quillfen {
namespace {

// A dot in front hides it from people, and no form gives a file such an end.
constexpr std::string_view asideBegin = ".quillfen-";
constexpr std::string_view asideEnd = ".aside";

/// Another name at each call, and others in another run of the program. It is short, whatever the target's
/// name.
std::string nextAsideName()
{
    static const auto run = std::to_string(std::random_device()());
    static std::atomic<unsigned> count = 0;
    return std::string(asideBegin) + run + '-' + std::to_string(++count) + std::string(asideEnd);
}

/// Runs what comes after a failure, of which alone the caller shall hear.
template <typename Act>
void attemptQuietly(const Act& act)
{
    try {
        act();
    } catch (const std::system_error&) {
        return;
    }
}

/// A file that is there, opened to be written to.
class OpenFile
{
public:
    OpenFile(DiskCalls& calls, const std::string& path) : m_calls(calls), m_handle(calls.open(path)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    ~OpenFile()
    {
        if (m_isOpen)
            attemptQuietly([this] { close(); });
    }

    DiskCalls::Handle handle() const { return m_handle; }

    /// Throws what the last bytes may have come to.
    void close()
    {
        m_isOpen = false;
        m_calls.close(m_handle);
    }

private:
    DiskCalls& m_calls;
    DiskCalls::Handle m_handle;
    bool m_isOpen = true;
};

void writeAll(DiskCalls& calls, DiskCalls::Handle file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t written = calls.write(file, bytes);
        if (written == 0)
            throw std::system_error(std::make_error_code(std::errc::io_error));
        bytes.remove_prefix(written);
    }
}

void writeOver(DiskCalls& calls, DiskCalls::Handle file, std::string_view bytes, Durable durable)
{
    writeAll(calls, file, bytes);
    calls.endHere(file);
    if (durable == Durable::Now)
        calls.sync(file);
}

} // namespace

bool isAsideName(std::string_view name)
{
    return name.starts_with(asideBegin) && name.ends_with(asideEnd);
}

std::string folderOf(const std::string& path)
{
    const auto folder = nativePath(path).parent_path();
    return folder.empty() ? "." : pathText(folder);
}

AsideFile::AsideFile(DiskCalls& calls, std::string target) : m_calls(calls), m_target(std::move(target)) {}

AsideFile::~AsideFile()
{
    if (m_file != noFile)
        attemptQuietly([this] { close(); });
    if (!m_path.empty())
        attemptQuietly([this] { m_calls.remove(m_path); });
}

void AsideFile::makeBeside(Access access)
{
    const auto folder = nativePath(folderOf(m_target));
    for (;;) {
        const auto path = pathText(folder / nextAsideName());
        try {
            m_file = m_calls.create(path, access);
            m_path = path;
            return;
        } catch (const std::system_error& error) {
            if (error.code() != std::errc::file_exists)
                throw;
        }
    }
}

void AsideFile::fill(std::string_view bytes, const FileFacts& replaced, Access access, Durable durable)
{
    makeBeside(access);
    if (replaced.kind == FileFacts::Kind::File)
        m_calls.giveRights(m_file, replaced);
    writeAll(m_calls, m_file, bytes);
    if (durable == Durable::Now)
        m_calls.sync(m_file);
    close();
}

void AsideFile::close()
{
    const auto file = m_file;
    m_file = noFile;
    m_calls.close(file); // a full disk often shows only now
}

void AsideFile::takePlace()
{
    m_calls.replace(m_path, m_target);
    m_path.clear();
}

void writeInPlace(DiskCalls& calls, const std::string& file, std::string_view bytes,
                  const std::optional<std::string>& old, Durable durable)
{
    OpenFile open(calls, file);
    try {
        writeOver(calls, open.handle(), bytes, durable);
    } catch (const std::system_error&) {
        attemptQuietly([&] {
            if (!old)
                return;
            calls.rewind(open.handle()); // the old bytes have room on any disk, as nothing was cut off
            writeOver(calls, open.handle(), *old, durable);
        });
        throw;
    }
    open.close();
}

void writeToDevice(DiskCalls& calls, const std::string& device, std::string_view bytes)
{
    OpenFile open(calls, device);
    writeAll(calls, open.handle(), bytes);
    open.close();
}

} // namespace quillfen
