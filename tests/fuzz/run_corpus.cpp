// Runs a fuzz target over the files of its corpus: a seed that once broke something must never break it again.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void RunFile(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(in), {}};
    const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
    // Every file whole, without its last bytes, and with one byte changed here and there.
    LLVMFuzzerTestOneInput(data.data(), data.size());
    const std::size_t step = data.size() / 64 + 1;
    for (std::size_t cut = 0; cut < data.size(); cut += step) LLVMFuzzerTestOneInput(data.data(), cut);
    for (std::size_t at = 0; at < data.size(); at += step) {
        std::vector<std::uint8_t> changed = data;
        changed[at] = static_cast<std::uint8_t>(changed[at] ^ (0x5A + at));
        LLVMFuzzerTestOneInput(changed.data(), changed.size());
    }
}

}  // namespace

int main(int argc, char** argv)
{
    int files = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto& entry : std::filesystem::directory_iterator(argv[i]))
            if (entry.is_regular_file() && entry.path().extension() != ".md") {
                RunFile(entry.path());
                ++files;
            }
    std::printf("%d files\n", files);
    return files > 0 ? 0 : 1;
}
