#include "study/SortedNumbers.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace lithmark {

namespace {

constexpr std::size_t kBlock = 8192;
constexpr std::uint32_t kSign = 0x80000000;

// Whole numbers in the order of the numbers: what is below 0 grows as its bits fall.
std::uint32_t KeyOf(float number) {
    const auto bits = std::bit_cast<std::uint32_t>(number + 0.0F);
    return bits & kSign ? ~bits : bits | kSign;
}

float NumberOf(std::uint32_t key) {
    return std::bit_cast<float>(key & kSign ? key & ~kSign : ~key);
}

}  // namespace

// Seven bits a byte, the lowest first; all bytes but the last have their upper bit set.
void SortedNumbers::Run::Put(std::uint64_t value) {
    for (;; value >>= 7) {
        if (end_ == kPage) {
            pages_.push_back(std::make_unique_for_overwrite<Page>());
            end_ = 0;
        }
        const bool more = value > 0x7F;
        (*pages_.back())[end_++] = static_cast<std::uint8_t>((value & 0x7F) | (more ? 0x80U : 0U));
        if (!more) return;
    }
}

// The distance from the last key, doubled, and 1 more where a count follows.
void SortedNumbers::Run::Append(const Item& item) {
    const bool repeats = item.Times > 1;
    Put(std::uint64_t{item.Key - last_} << 1 | (repeats ? 1U : 0U));
    if (repeats) Put(item.Times);
    last_ = item.Key;
    ++items_;
}

// The items of a run one after the other.
class SortedNumbers::Run::Reader {
  public:
    // Of a run that is used up, pages are given back as they have been read.
    Reader(Run& run, bool usesUp) : run_(run), left_(run.items_), usesUp_(usesUp) {}

    // The next one; at the end one of no times.
    Item Next() {
        if (left_ == 0) return {};
        --left_;
        const std::uint64_t value = Take();
        item_.Key += static_cast<std::uint32_t>(value >> 1);
        item_.Times = value & 1 ? Take() : 1;
        return item_;
    }

  private:
    std::uint64_t Take() {
        std::uint64_t value = 0;
        for (int shift = 0;; shift += 7) {
            if (at_ == kPage) {
                if (usesUp_) run_.pages_[page_].reset();
                ++page_;
                at_ = 0;
            }
            const std::uint8_t byte = (*run_.pages_[page_])[at_++];
            value |= std::uint64_t{byte & 0x7FU} << shift;
            if (byte <= 0x7F) return value;
        }
    }

    Run& run_;
    std::uint64_t left_;
    bool usesUp_;
    std::size_t page_ = 0, at_ = 0;
    Item item_;
};

void SortedNumbers::Add(float number) {
    block_.push_back(KeyOf(number));
    ++count_;
    if (block_.size() < kBlock) return;
    SortBlock();
    while (runs_.size() > 1 && runs_[runs_.size() - 2].Items() < 2 * runs_.back().Items()) Merge();
}

void SortedNumbers::SortBlock() {
    std::ranges::sort(block_);
    Run& run = runs_.emplace_back();
    for (std::size_t i = 0, next = 0; i < block_.size(); i = next) {
        while (next < block_.size() && block_[next] == block_[i]) ++next;
        run.Append({block_[i], next - i});
    }
    block_.clear();
}

void SortedNumbers::Merge() {
    Run second = std::move(runs_.back());
    runs_.pop_back();
    Run first = std::exchange(runs_.back(), {});
    Run::Reader a(first, true), b(second, true);
    Run& merged = runs_.back();
    for (Run::Item one = a.Next(), other = b.Next(); one.Times + other.Times > 0;) {
        const bool takesOne = other.Times == 0 || (one.Times > 0 && one.Key <= other.Key);
        const bool takesOther = one.Times == 0 || (other.Times > 0 && other.Key <= one.Key);
        merged.Append({takesOne ? one.Key : other.Key, (takesOne ? one.Times : 0) + (takesOther ? other.Times : 0)});
        if (takesOne) one = a.Next();
        if (takesOther) other = b.Next();
    }
}

void SortedNumbers::ForEach(const std::function<void(float, std::uint64_t)>& each) {
    if (!block_.empty()) SortBlock();
    while (runs_.size() > 1) Merge();
    if (runs_.empty()) return;
    Run::Reader items(runs_.front(), false);
    for (Run::Item item = items.Next(); item.Times > 0; item = items.Next()) each(NumberOf(item.Key), item.Times);
}

std::size_t SortedNumbers::Bytes() const noexcept {
    std::size_t bytes = 0;
    for (const Run& run : runs_) bytes += run.Bytes();
    return bytes;
}

}  // namespace lithmark
