// Runs the program within a test and reads what it left.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "workbench/cli/program.h"

namespace Tarvex::Testing {

/// What one run of the program gave.
struct RunResult {
  int exit = 0;
  std::string out;
  std::string err;

  nlohmann::json Json() const { return nlohmann::json::parse(out); }
};

inline RunResult RunTarvex(std::vector<std::string> const& words) {
  std::ostringstream out;
  std::ostringstream err;
  int const exit = Workbench::RunProgram(words, out, err);
  return {exit, out.str(), err.str()};
}

/// A folder of its own for each test, gone with it.
class RunTest : public ::testing::Test {
 protected:
  RunTest() {
    auto const* info = ::testing::UnitTest::GetInstance()->current_test_info();
    m_folder = std::filesystem::temp_directory_path() /
               (std::string("tarvex-") + info->test_suite_name() + "-" + info->name() + "-" +
                std::to_string(::getpid()));
    std::filesystem::create_directories(m_folder);
  }
  ~RunTest() override { std::filesystem::remove_all(m_folder); }

  std::string Path(std::string const& name) const { return (m_folder / name).string(); }

  /// Writes a file of the test's folder and gives its path.
  std::string Write(std::string const& name, std::string const& text) const {
    std::ofstream(Path(name)) << text;
    return Path(name);
  }

  std::string Read(std::string const& name) const {
    std::ifstream file(Path(name));
    return {std::istreambuf_iterator<char>(file), {}};
  }

  bool Exists(std::string const& name) const { return std::filesystem::exists(Path(name)); }

  std::size_t NumFiles() const {
    using Walk = std::filesystem::directory_iterator;
    return static_cast<std::size_t>(std::distance(Walk(m_folder), Walk()));
  }

 private:
  std::filesystem::path m_folder;
};

/// The header that every model file begins with.
inline std::string const kHeader =
    R"({"format": "tarvex-model", "version": "1.0", "units": {"length": "m", "force": "N",)"
    R"( "mass": "kg", "time": "s", "temperature": "C", "angle": "deg"})";

/// Two beams along x, the second (number 2) backwards, and a quadrilateral (3) that faces down with
/// a wedge (4) above it.
inline std::string SmallModel() {
  return kHeader + R"(,
"Node": [
{"n": 1, "position": [0, 0, 0]}, {"n": 2, "position": [1, 0, 0]}, {"n": 3, "position": [2, 0, 0]},
{"n": 4, "position": [0, 1, 0]}, {"n": 5, "position": [1, 1, 0]},
{"n": 6, "position": [0, 0, 1]}, {"n": 7, "position": [1, 0, 1]}, {"n": 8, "position": [0, 1, 1]}],
"Elem": [
{"n": 1, "type": 2, "topology": [1, 2]}, {"n": 2, "type": 2, "topology": [3, 2]},
{"n": 3, "type": 5, "topology": [1, 4, 5, 2], "offset": {"z": 0.25}},
{"n": 4, "type": 14, "topology": [1, 2, 4, 6, 7, 8]}],
"LoadPanel": [{"n": 5, "topology": [1, 2, 5, 4]}]
}
)";
}

}  // namespace Tarvex::Testing
