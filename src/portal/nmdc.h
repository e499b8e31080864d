#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The words of the NMDC protocol: 8-bit text, each message ended by "|".
namespace quillfen {

inline constexpr char messageEnd = '|';

/// The part before the first separator; the whole text if there is none.
std::string_view TextBefore(std::string_view text, std::string_view separator);

/// The part behind the first separator; empty if there is none. The message loop rests on the two not being
/// symmetrical.
std::string_view TextAfter(std::string_view text, std::string_view separator);

/// The answer to a hub's lock, one piece for each of its characters. Cuts the caller's lock before its first
/// blank. A lock too short to have the neighbours that its first value is made of is answered as if those
/// were zero.
std::string LockToKey(std::string& lock);

/// What has been received and not yet been handled, taken message by message. Each byte is searched and
/// copied a bounded number of times, whatever the pieces it came in.
class ReceiveBuffer
{
public:
    void append(std::string_view bytes) { m_bytes += bytes; }

    bool empty() const { return m_taken == m_bytes.size(); }

    /// What waits in the buffer.
    std::string_view waiting() const { return std::string_view(m_bytes).substr(m_taken); }

    /// Takes the next whole message, without its end; nothing if there is none yet.
    std::optional<std::string> takeMessage();

private:
    void compact();

    std::string m_bytes;
    std::size_t m_taken = 0;
    std::size_t m_searched = 0;
};

/// What a "$MyINFO" tells of a user.
struct MyInfo
{
    std::string nick;
    std::string description;
    std::string mode; ///< "ACTIVE" or "PASSIVE"
    std::string speed;
    int status = 0;
    std::string email;
    std::string share; ///< a number, "0" if the hub told none
};

/// Reads the parameters of a "$MyINFO". What is missing is empty.
MyInfo readMyInfo(std::string_view parameters);

/// The category of a connection by its speed's text.
std::string_view ConnectionCategory(std::string_view speed);

} // namespace quillfen
