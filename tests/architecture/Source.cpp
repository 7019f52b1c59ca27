#include "architecture/Source.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/Places.h"

namespace lithmark::tests {

namespace fs = std::filesystem;

const std::map<std::string, int>& Floors() {
    static const std::map<std::string, int> floors = {
        {"base", 0},    {"texts", 1}, {"services", 2}, {"core", 3},    {"files", 4}, {"report", 5},  {"kernels", 6},
        {"contour", 7}, {"ui", 8},    {"study", 9},    {"render", 10}, {"cli", 11},  {"desktop", 11}};
    return floors;
}

std::string TextOf(const std::string& path) {
    std::ifstream in(SourceDir() / path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

const std::vector<SourceFile>& Sources() {
    static const std::vector<SourceFile> sources = [] {
        std::vector<SourceFile> files;
        for (const auto& [floor, level] : Floors()) {
            if (!fs::exists(SourceDir() / floor)) continue;
            for (const auto& entry : fs::recursive_directory_iterator(SourceDir() / floor)) {
                const auto extension = entry.path().extension();
                if (extension != ".h" && extension != ".cpp" && extension != ".inc") continue;
                const fs::path path = fs::relative(entry.path(), SourceDir());
                files.push_back({path.string(), floor, path.parent_path().string(), TextOf(path.string())});
            }
        }
        return files;
    }();
    return sources;
}

std::vector<std::string> Includes(const std::string& text) {
    std::vector<std::string> names;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t start = line.find_first_not_of(" \t");
        if (start == std::string::npos || line[start] != '#') continue;
        const std::size_t word = line.find_first_not_of(" \t", start + 1);
        if (word == std::string::npos || line.compare(word, 7, "include") != 0) continue;
        const std::size_t open = line.find_first_of("<\"", word);
        if (open == std::string::npos) continue;
        const std::size_t close = line.find(line[open] == '<' ? '>' : '"', open + 1);
        if (close != std::string::npos) names.push_back(line.substr(open + 1, close - open - 1));
    }
    return names;
}

}  // namespace lithmark::tests
