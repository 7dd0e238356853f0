// Any bytes as a model file: they are refused with a place inside them, or read as a model that
// writes and reads back as the same model and the same text.
#include <algorithm>
#include <cstdint>
#include <string_view>

#include "tests/fuzz/require.h"
#include "workbench/file/file_error.h"
#include "workbench/file/json_scan.h"
#include "workbench/file/model_reader.h"
#include "workbench/file/model_writer.h"

namespace Tarvex::Workbench {
namespace {

void CheckAccepted(std::string const& text, CZelData const& model) {
  Testing::Require(!ScanJson(text).fault, "an accepted text is JSON");
  auto const written = WriteModelText(model);
  CZelData back;
  ReadModelText(written, "written", back);
  Testing::Require(back == model, "a model reads back as it was written");
  Testing::Require(WriteModelText(back) == written, "a model is always written alike");
}

void CheckFault(std::string const& text, FileError const& fault) {
  auto const& place = fault.Place();
  auto const lines = std::count(text.begin(), text.end(), '\n') + 1;
  Testing::Require(place.line >= 1 && place.line <= lines, "a fault is on a line of the text");
  Testing::Require(place.column >= 1, "a fault has a column");
  Testing::Require(!fault.Text().empty(), "a fault has a reason");
  Testing::Require(std::string_view(fault.what()).find('\n') == std::string_view::npos,
                   "a fault is one line");
}

void Check(std::string const& text) {
  CZelData model;
  try {
    ReadModelText(text, "fuzz", model);
  } catch (FileError const& fault) {
    Testing::Require(model == CZelData(), "a text that is refused changes nothing");
    return CheckFault(text, fault);
  }
  CheckAccepted(text, model);
}

}  // namespace
}  // namespace Tarvex::Workbench

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  Tarvex::Workbench::Check({data, data + size});
  return 0;
}
