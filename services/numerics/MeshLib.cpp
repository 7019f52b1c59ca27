#include "services/numerics/MeshLib.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>

#include "base/Failure.h"

namespace lithmark::MeshLib {

MeshValues BuildEdges(std::vector<ElementRecord>& records) {
    std::unordered_map<std::uint32_t, long> numbers;  // by the two nodes, the smaller one first
    numbers.reserve(2 * records.size());
    for (ElementRecord& record : records) {
        if (record.Count < 0 || record.Count > 4) Fail(FailureKind::SubscriptRange);
        for (long k = 1; k <= record.Count; ++k) {
            const auto [low, high] = std::minmax<int>({record.Node[k], record.Node[k == record.Count ? 1 : k + 1]});
            const auto key =
                static_cast<std::uint32_t>(static_cast<std::uint16_t>(low)) << 16 | static_cast<std::uint16_t>(high);
            record.Edge[k] = numbers.try_emplace(key, static_cast<long>(numbers.size()) + 1).first->second;
        }
    }
    return {static_cast<long>(numbers.size()), {}, {}, {}};
}

}  // namespace lithmark::MeshLib
