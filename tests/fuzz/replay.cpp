// Runs one fuzzer over the files of a folder, so that every build tries what fuzzing once found.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  int count = 0;
  for (auto const& entry : std::filesystem::directory_iterator(argv[1])) {
    std::ifstream file(entry.path(), std::ios::binary);
    std::string const bytes{std::istreambuf_iterator<char>(file), {}};
    // The last line tells the file of a rule that breaks.
    std::printf("%s\n", entry.path().filename().c_str());
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size());
    ++count;
  }
  std::printf("%d passed, 0 failed\n", count);
  return count > 0 ? 0 : 1;
}
