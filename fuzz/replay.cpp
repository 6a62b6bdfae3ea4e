// Feeds a fuzz target what was found before: every file that is named, and every file of
// a folder that is. Built without a fuzzer, so that each test run does it. A target
// aborts where an input breaks its promise; no input at all is a mistake, too.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> filesOf(int count, char *const names[])
{
    std::vector<fs::path> files;
    for (int i = 0; i < count; ++i) {
        if (!fs::is_directory(names[i])) {
            files.emplace_back(names[i]);
            continue;
        }
        for (const fs::directory_entry &entry : fs::directory_iterator(names[i]))
            files.push_back(entry.path());
    }
    return files;
}

} // namespace

int main(int count, char *names[])
{
    const std::vector<fs::path> files = filesOf(count - 1, names + 1);
    for (const fs::path &path : files) {
        std::ifstream file(path, std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
        if (!file) {
            std::fprintf(stderr, "%s cannot be read\n", path.c_str());
            return 1;
        }
        std::fprintf(stderr, "%s, %zu bytes\n", path.c_str(), bytes.size());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
    }
    if (files.empty())
        std::fputs("there is nothing to feed; name files or folders\n", stderr);
    return files.empty() ? 1 : 0;
}
