#include "study/Wire.h"

#include <algorithm>
#include <utility>

namespace lithmark {

void WireWriter::Put(const RowInput& input) {
    Put(static_cast<std::uint32_t>(input.size()));
    for (const FieldChange& change : input) {
        Put(change.Name);
        Put(change.Value);
    }
}

void WireWriter::Put(const RowOutcome& outcome) {
    Put(static_cast<std::uint8_t>(outcome.Aborted));
    Put(static_cast<std::uint32_t>(outcome.Numbers.size()));
    for (const float number : outcome.Numbers) Put(number);
    Put(static_cast<std::uint32_t>(outcome.Lists.size()));
    for (const auto& list : outcome.Lists) {
        Put(static_cast<std::uint32_t>(list.size()));
        for (const float number : list) Put(number);
    }
    Put(static_cast<std::uint32_t>(outcome.Messages.size()));
    for (const std::string& message : outcome.Messages) Put(message);
    Put(outcome.Notices);
}

std::string WireWriter::TakeFrame() {
    const auto length = static_cast<std::uint32_t>(bytes_.size());
    std::string frame(reinterpret_cast<const char*>(&length), sizeof length);
    frame += std::exchange(bytes_, {});
    return frame;
}

std::string_view WireReader::Bytes(std::size_t count) {
    const std::string_view bytes = rest_.substr(0, count);
    rest_.remove_prefix(bytes.size());
    return bytes;
}

RowInput WireReader::Input() {
    RowInput input;
    for (auto count = Number<std::uint32_t>(); count > 0 && !AtEnd(); --count) {
        std::string name = Text();
        input.push_back({std::move(name), Text()});
    }
    return input;
}

RowOutcome WireReader::Outcome() {
    RowOutcome outcome;
    const auto numbers = [&] {
        std::vector<float> values;
        const auto count = std::min<std::size_t>(Number<std::uint32_t>(), rest_.size() / sizeof(float));
        values.reserve(count);
        for (std::size_t i = 0; i < count; ++i) values.push_back(Number<float>());
        return values;
    };
    outcome.Aborted = Number<std::uint8_t>() != 0;
    outcome.Numbers = numbers();
    for (auto count = Number<std::uint32_t>(); count > 0 && !AtEnd(); --count) outcome.Lists.push_back(numbers());
    for (auto count = Number<std::uint32_t>(); count > 0 && !AtEnd(); --count) outcome.Messages.push_back(Text());
    outcome.Notices = Text();
    return outcome;
}

std::optional<std::string_view> FrameBuffer::Next() {
    std::uint32_t length = 0;
    if (bytes_.size() - at_ < sizeof length) {
        bytes_.erase(0, std::exchange(at_, 0));
        return std::nullopt;
    }
    std::memcpy(&length, bytes_.data() + at_, sizeof length);
    if (bytes_.size() - at_ - sizeof length < length) {
        bytes_.erase(0, std::exchange(at_, 0));
        return std::nullopt;
    }
    const std::string_view frame(bytes_.data() + at_ + sizeof length, length);
    at_ += sizeof length + length;
    return frame;
}

}  // namespace lithmark
