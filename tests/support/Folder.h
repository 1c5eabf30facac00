// Folder.h: files and folders of a test.
#pragma once

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace malvone::test {

// A temporary folder that is removed with the test.
class Folder
{
public:
    explicit Folder(const std::filesystem::path& in = std::filesystem::temp_directory_path())
    {
        std::string pattern = (in / "malvone-XXXXXX").string();
        Path = ::mkdtemp(pattern.data());
    }
    ~Folder()
    {
        std::error_code error;
        std::filesystem::remove_all(Path, error);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::filesystem::path Path;
};

// A file byte for byte; nothing where there is none.
inline std::optional<std::string> Contents(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return file ? std::optional(std::string(std::istreambuf_iterator<char>(file), {}))
                : std::nullopt;
}
inline void WriteFile(const std::filesystem::path& path, std::string_view content)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}
// The names in a folder, sorted.
inline std::vector<std::string> Names(const std::filesystem::path& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace malvone::test
