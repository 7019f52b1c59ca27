// SortedNumbers: very many numbers of which only their order counts in the end, in a byte or two each.
//
// They are kept sorted, each as its distance from the one before in the order of all 32-bit numbers, with a count where
// it repeats. Numbers come in blocks; a block is sorted as it is full, and sorted runs of like length become one. What
// is held grows with the count of different numbers, and never beyond some 2 bytes for each of them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace lithmark {

class SortedNumbers {
  public:
    // Not for what is no number. 0 and -0 are one.
    void Add(float number);
    std::uint64_t Count() const noexcept { return count_; }
    // Each different number once, from the least to the greatest, and how often it was added.
    void ForEach(const std::function<void(float number, std::uint64_t times)>& each);
    // What the sorted numbers take.
    std::size_t Bytes() const noexcept;

  private:
    // Different numbers in their order.
    class Run {
      public:
        struct Item {
            std::uint32_t Key = 0;
            std::uint64_t Times = 0;  // 0: no item
        };
        class Reader;

        // Greater than the last one.
        void Append(const Item& item);
        std::uint64_t Items() const noexcept { return items_; }
        std::size_t Bytes() const noexcept { return pages_.size() * kPage; }

      private:
        // Of one size, so that what one run gives back another takes.
        static constexpr std::size_t kPage = 4080;
        using Page = std::array<std::uint8_t, kPage>;

        void Put(std::uint64_t value);

        std::vector<std::unique_ptr<Page>> pages_;
        std::size_t end_ = kPage;  // in the last page
        std::uint32_t last_ = 0;
        std::uint64_t items_ = 0;
    };

    void SortBlock();
    // The last two runs become one.
    void Merge();

    std::vector<std::uint32_t> block_;  // keys in the order in which they came
    std::vector<Run> runs_;             // each at least twice as long as the next
    std::uint64_t count_ = 0;
};

}  // namespace lithmark
