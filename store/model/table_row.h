// What the list of all tables (store/model/registry.h) says of one.
#pragma once

#include <string_view>
#include <vector>

#include "store/model/zel_data.h"
#include "store/table/table_walks.h"

namespace Tarvex {

/// How the records of a table are numbered.
enum class TableShape {
  Sparse,      ///< numbers with holes
  Positional,  ///< the number is the position from 1
};

/// How records leave a table.
enum class RemovalForm {
  Blank,   ///< leaves holes
  Delete,  ///< closes up where the table is positional
};

/// One table with its operations. @tparam W what the whole table is given as; store/table/
/// table_walks.h walks it whatever its shape.
template <class R, class W>
struct RowOf {
  using Record = R;
  using Whole = W;

  CModule::ModuleId module;
  std::string_view stem;  ///< name of the table in files and messages
  TableShape shape;
  RemovalForm removal;
  bool (CZelData::*exist)(int) const;
  R const& (CZelData::*get)(int) const;
  W const& (CZelData::*all)() const;
  int (CZelData::*highest)() const;  ///< of a number space, which two tables may share
  void (CZelData::*set)(int, R const&, SidMode);
  void (CZelData::*remove)(int, int);
};

/// One sparse table.
template <class R>
using TableRow = RowOf<R, tarvex_unordered_map<unsigned int, R>>;
/// One positional table.
template <class R>
using PositionalRow = RowOf<R, std::vector<R>>;

}  // namespace Tarvex
