// Tables of loads that are given on grid surfaces.
//
// All are positional: the number of a record is its place from 1, and Highest... is how many there
// are. Set... takes a number up to Highest... + 1 (std::out_of_range otherwise); Delete... closes
// up, so a walk that deletes goes downwards, and Delete...(0, 1) empties a table.
#pragma once

#include <vector>

#include "store/export.h"
#include "store/model/query_types.h"

namespace Tarvex {

class ModelCore;
namespace Data {
class CGridAreaLoad;
class CGridLineLoad;
class CGridPointLoad;
}  // namespace Data

/// Loads on grid surfaces.
class TARVEX_STORE_EXPORT GridLoadTables {
 public:
  // Point loads on a grid (161).
  bool GridPointLoadExist(int n) const;
  Data::CGridPointLoad const& GridPointLoad(int n) const;
  std::vector<Data::CGridPointLoad> const& GridPointLoad() const;
  int HighestGridPointLoad() const;
  void SetGridPointLoad(int n, Data::CGridPointLoad const& load, SidMode sid = SidMode::Keep);
  /// The flag is without effect.
  void SetGridPointLoad(int n, Data::CGridPointLoad const& load, bool flag,
                        SidMode sid = SidMode::Keep);
  void DeleteGridPointLoad(int first, int count);

  // Line loads on a grid (162).
  bool GridLineLoadExist(int n) const;
  Data::CGridLineLoad const& GridLineLoad(int n) const;
  std::vector<Data::CGridLineLoad> const& GridLineLoad() const;
  int HighestGridLineLoad() const;
  void SetGridLineLoad(int n, Data::CGridLineLoad const& load, SidMode sid = SidMode::Keep);
  /// The flag is without effect.
  void SetGridLineLoad(int n, Data::CGridLineLoad const& load, bool flag,
                       SidMode sid = SidMode::Keep);
  void DeleteGridLineLoad(int first, int count);

  // Area loads on a grid (163).
  bool GridAreaLoadExist(int n) const;
  Data::CGridAreaLoad const& GridAreaLoad(int n) const;
  std::vector<Data::CGridAreaLoad> const& GridAreaLoad() const;
  int HighestGridAreaLoad() const;
  void SetGridAreaLoad(int n, Data::CGridAreaLoad const& load, SidMode sid = SidMode::Keep);
  /// The flag is without effect.
  void SetGridAreaLoad(int n, Data::CGridAreaLoad const& load, bool flag,
                       SidMode sid = SidMode::Keep);
  void DeleteGridAreaLoad(int first, int count);

 protected:
  explicit GridLoadTables(ModelCore& core) : m_core(core) {}
  ~GridLoadTables() = default;
  GridLoadTables(GridLoadTables const&) = delete;
  GridLoadTables& operator=(GridLoadTables const&) = delete;

 private:
  ModelCore& m_core;
};

}  // namespace Tarvex
