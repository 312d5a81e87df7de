#include "support/temporary_file.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace folioscope::test {

TemporaryFolder::TemporaryFolder() : path_((std::filesystem::temp_directory_path() / "folioscope-XXXXXX").string())
{
    if (::mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no temporary folder");
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::File(std::string_view name, std::string_view content) const
{
    const std::string path = *this / name;
    std::ofstream(path, std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
    return path;
}

std::string ReadWhole(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace folioscope::test
