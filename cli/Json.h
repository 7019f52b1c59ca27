// JSON whose numbers are 32-bit: printed with as many digits as give the stored value back; keys keep their order.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark {

using Json = nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool, std::int64_t, std::uint64_t,
                                  Single::Storage>;

inline Json ToJson(Single value) {
    return value.Stored();
}
inline Json ToJson(Integer value) {
    return static_cast<int>(value);
}

// The elements from the lower bound on.
template <typename T>
Json ToJson(const Array<T>& values) {
    Json list = Json::array();
    for (const T& value : values) list.push_back(ToJson(value));
    return list;
}

// As text, two blanks of indentation; bytes that are no UTF-8 are replaced.
inline std::string JsonText(const Json& json) {
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace lithmark
