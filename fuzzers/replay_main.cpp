// Plays files, or all files of folders, through a fuzzer without libFuzzer: its seeds as a test, a finding by hand.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

void play(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    std::printf("%s\n", path.filename().string().c_str()); // the last line names the input that failed
    std::fflush(stdout);
    const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
    static_cast<void>(LLVMFuzzerTestOneInput(data.data(), data.size()));
}

int playAll(const fs::path& path)
{
    if (!fs::is_directory(path)) {
        play(path);
        return 1;
    }
    int played = 0;
    for (const auto& entry : fs::directory_iterator(path)) {
        if (entry.is_regular_file()) {
            play(entry.path());
            ++played;
        }
    }
    return played;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    int played = 0;
    for (int i = 1; i < argumentCount; ++i) {
        if (!fs::exists(arguments[i])) {
            std::fprintf(stderr, "no such file or folder: %s\n", arguments[i]);
            return 2;
        }
        played += playAll(arguments[i]);
    }
    std::printf("%d played\n", played);
    return played > 0 ? 0 : 2;
}
