// Runs a fuzzer's entry over kept inputs, without an engine: the tests replay what fuzzing has found so far.
//
// Usage: PROGRAM (FILE | DIRECTORY)...
//
// Ends with 0 when every input went through. A broken law ends the process, after the name of the input was printed.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace
{

namespace fs = std::filesystem;

/// All files under the paths, in one order everywhere.
std::vector<fs::path> FilesUnder(const std::vector<fs::path>& paths)
{
    std::vector<fs::path> files;
    for (const fs::path& path : paths)
    {
        if (!fs::is_directory(path))
        {
            files.push_back(path);
            continue;
        }
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path))
        {
            if (entry.is_regular_file())
            {
                files.push_back(entry.path());
            }
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

bool Replay(const fs::path& file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in)
    {
        std::fprintf(stderr, "cannot read %s\n", file.c_str());
        return false;
    }
    const std::vector<char> bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    // A copy of exactly this size, so that a sanitizer sees a read beyond it.
    const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
    std::printf("%s, %zu bytes\n", file.filename().c_str(), input.size());
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(input.data(), input.size());
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<fs::path> files = FilesUnder({argv + 1, argv + argc});
    for (const fs::path& file : files)
    {
        if (!Replay(file))
        {
            return 1;
        }
    }
    std::printf("%zu inputs replayed\n", files.size());
    return files.empty() ? 1 : 0;
}
