// What tests of model files share.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

#include "store/model/zel_data.h"
#include "workbench/file/file_error.h"
#include "workbench/file/model_reader.h"

namespace Tarvex::Testing {

/// A model file with the given entries behind its head. The head takes lines 1 to 4; each entry
/// begins with ",\n", so that the first one stands on line 5.
inline std::string ModelFile(std::string const& entries) {
  return R"({
"format": "tarvex-model",
"version": "1.0",
"units": {"length": "m", "force": "N", "mass": "kg", "time": "s", "temperature": "C", "angle": "deg"})" +
         entries + "\n}\n";
}

inline CZelData Read(std::string const& text) {
  CZelData model;
  Workbench::ReadModelText(text, "m.json", model);
  return model;
}

/// The fault of a text, empty when it reads.
inline std::optional<Workbench::FileError> FaultOf(std::string const& text) {
  try {
    Read(text);
    return std::nullopt;
  } catch (Workbench::FileError const& fault) {
    return fault;
  }
}

inline std::string Contents(std::filesystem::path const& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// A folder of its own for each test, gone with it.
class FolderTest : public ::testing::Test {
 protected:
  FolderTest() {
    auto pattern = (std::filesystem::temp_directory_path() / "tarvex-test-XXXXXX").string();
    m_folder = ::mkdtemp(pattern.data());
  }
  ~FolderTest() override { std::filesystem::remove_all(m_folder); }

  std::string Path(std::string const& name) const { return (m_folder / name).string(); }
  void Put(std::string const& name, std::string const& text) const {
    std::ofstream(Path(name), std::ios::binary) << text;
  }
  /// Number of entries of the folder.
  auto Count() const { return std::distance(std::filesystem::directory_iterator(m_folder), {}); }

 private:
  std::filesystem::path m_folder;
};

}  // namespace Tarvex::Testing
