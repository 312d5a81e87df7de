#pragma once

#include <string>
#include <string_view>

namespace folioscope::test {

// A folder of its own for a test, which goes with it.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::string& Path() const { return path_; }
    std::string operator/(std::string_view name) const { return path_ + "/" + std::string(name); }
    // Writes a file into the folder and gives its path.
    std::string File(std::string_view name, std::string_view content) const;

private:
    std::string path_;
};

std::string ReadWhole(const std::string& path);

}  // namespace folioscope::test
