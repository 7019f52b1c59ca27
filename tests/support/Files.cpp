#include "support/Files.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>

#include "base/Paths.h"

namespace lithmark::tests {

TestFolder::TestFolder() {
    std::random_device random;
    do {
        const std::string name = "lithmark-test-" + std::to_string(random() % 1000000);
        path_ = (std::filesystem::temp_directory_path() / name).generic_string();
    } while (!std::filesystem::create_directory(path_));
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all);
}

TestFolder::~TestFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
}

std::vector<std::string> TestFolder::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

void WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(PathOf(path), std::ios::binary) << bytes;
}

std::string ReadBytes(const std::string& path) {
    std::ifstream file(PathOf(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool OnAFullDisk(std::uint64_t bytes, const std::function<bool()>& action) {
    return RunInACopy([&action] { return action() ? 0 : 1; }, bytes) == 0;
}

}  // namespace lithmark::tests
