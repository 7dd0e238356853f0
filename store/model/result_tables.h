// Results of an analysis: stored by the application or read from a file, and asked for by tools.
#pragma once

#include "store/export.h"
#include "store/model/query_types.h"
#include "store/numeric/vec.h"
#include "store/select/reference.h"
#include "store/table/paged_table.h"

namespace Tarvex {

class ModelCore;
enum class ResponseType : int;
namespace Data {
class CCaseResult;
class CElemResult;
}  // namespace Data

/// Results of a model. They are a part of it as all records are: of copies, undo, difference,
/// files. No tool keeps them in step with what it changes.
class TARVEX_STORE_EXPORT ResultTables {
 public:
  // Results of elements, by the number of the element (no module number). The operations are those
  // of store/model/entity_tables.h.
  bool ElemResultExist(int n) const;
  Data::CElemResult const& ElemResult(int n) const;
  tarvex_unordered_map<unsigned int, Data::CElemResult> const& ElemResult() const;
  int HighestElemResult() const;
  void SetElemResult(int n, Data::CElemResult const& record, SidMode sid = SidMode::Keep);
  void BlankElemResult(int first, int count);

  // Results of cases (no module number).
  bool CaseResultExist(int n) const;
  Data::CCaseResult const& CaseResult(int n) const;
  tarvex_unordered_map<unsigned int, Data::CCaseResult> const& CaseResult() const;
  int HighestCaseResult() const;
  void SetCaseResult(int n, Data::CCaseResult const& record, SidMode sid = SidMode::Keep);
  void BlankCaseResult(int first, int count);

  /// Whether any result is stored.
  bool AnyResults() const;
  /// Whether results of cases of a kind are stored; the kinds are bits, and 127 is all of them. The
  /// task need not exist: results do not say which task they came from.
  bool AnalysisTaskHasResults(int task, CaseOp kinds) const;
  /// Removes all results.
  void RemoveResults();

  // Single results; 0 where there is none. Setting one makes the record that holds it.
  /// Force on an end (0 or 1) of an element along the global axes, and moment about them.
  Vec3<double> Force(int element, SCaseRef const& ref, int end) const;
  Vec3<double> Moment(int element, SCaseRef const& ref, int end) const;
  void SetForce(int element, SCaseRef const& ref, int end, Vec3<double> const& force);
  void SetMoment(int element, SCaseRef const& ref, int end, Vec3<double> const& moment);
  /// Mass of the analysis of a case (mode 0), or what of it a mode moves.
  double Mass(SCaseRef const& ref, int mode) const;
  void SetMass(SCaseRef const& ref, int mode, double mass);
  /// Natural period of a mode.
  double Period(SCaseRef const& ref, ResponseType mode) const;
  void SetPeriod(SCaseRef const& ref, ResponseType mode, double period);
  /// Shear at the base, of all modes together or of one.
  double TotalBaseShear(SCaseRef const& ref, ResponseType mode) const;
  void SetTotalBaseShear(SCaseRef const& ref, ResponseType mode, double shear);

 protected:
  explicit ResultTables(ModelCore& core) : m_core(core) {}
  ~ResultTables() = default;
  ResultTables(ResultTables const&) = delete;
  ResultTables& operator=(ResultTables const&) = delete;

 private:
  ModelCore& m_core;
};

}  // namespace Tarvex
