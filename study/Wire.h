// What goes between a study and its workers: numbers and texts one after the other, in frames that tell their length.
// Both ends are the same program on the same machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "study/Row.h"

namespace lithmark {

using Ticket = std::uint64_t;  // the name that a row goes by between the two

class WireWriter {
  public:
    template <typename T>
    requires std::is_arithmetic_v<T>
    void Put(T value) { bytes_.append(reinterpret_cast<const char*>(&value), sizeof value); }
    void Put(std::string_view text) {
        Put(static_cast<std::uint32_t>(text.size()));
        bytes_.append(text);
    }
    void Put(const RowInput& input);
    void Put(const RowOutcome& outcome);

    bool Empty() const noexcept { return bytes_.empty(); }
    // What was put since the last frame, with its length ahead of it.
    std::string TakeFrame();

  private:
    std::string bytes_;
};

// Reads a frame's content in the order in which it was put. A frame that ends early gives zeros and empty texts.
class WireReader {
  public:
    explicit WireReader(std::string_view bytes) : rest_(bytes) {}

    bool AtEnd() const noexcept { return rest_.empty(); }
    template <typename T>
    requires std::is_arithmetic_v<T> T Number() {
        T value{};
        const std::string_view bytes = Bytes(sizeof value);
        std::memcpy(&value, bytes.data(), bytes.size());
        return value;
    }
    std::string Text() { return std::string(Bytes(Number<std::uint32_t>())); }
    RowInput Input();
    RowOutcome Outcome();

  private:
    std::string_view Bytes(std::size_t count);

    std::string_view rest_;
};

// Frames out of a stream of bytes that comes in pieces of any size.
class FrameBuffer {
  public:
    void Append(std::string_view bytes) { bytes_.append(bytes); }
    // The content of the next whole frame; it stays valid until the next call.
    std::optional<std::string_view> Next();

  private:
    std::string bytes_;
    std::size_t at_ = 0;
};

}  // namespace lithmark
