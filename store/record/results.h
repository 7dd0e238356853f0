// Results of an analysis that tools ask for.
#pragma once

#include <algorithm>
#include <vector>

#include "store/record/case_refs.h"
#include "store/record/entity.h"

namespace Tarvex {

/// Which part of a response a result is: all modes together, or a mode by its number.
enum class ResponseType : int { Combined = 0, FirstMode = 1 };

namespace Data {

/// The case that a result belongs to.
struct ResultCase : SCaseRef {
  ResultCase() : SCaseRef(CaseOp::Analysis, 0) {}
  ResultCase(SCaseRef const& ref) : SCaseRef(ref) {}  // NOLINT: the same thing

  friend bool operator==(ResultCase const& a, ResultCase const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = ResultCase;
    return MakeRows(Plain<R>("type", &SCaseRef::type),
                    Field<R, int>{"number", &SCaseRef::num, false,
                                  [](R const& ref) { return CaseModule(ref.type); }},
                    Plain<R>("permutation", &SCaseRef::permutation));
  }
};

/// Force and moment on one end of an element in a case, along and about the global axes.
struct EndResult {
  ResultCase of;
  int end = 0;  ///< 0 or 1
  Vec3<double> force;
  Vec3<double> moment;

  bool IsAt(SCaseRef const& ref, int place) const {
    return static_cast<SCaseRef const&>(of) == ref && end == place;
  }
  /// Order of results in a record.
  bool IsBefore(SCaseRef const& ref, int place) const {
    auto const order = static_cast<SCaseRef const&>(of) <=> ref;
    return order < 0 || (order == 0 && end < place);
  }

  friend bool operator==(EndResult const& a, EndResult const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = EndResult;
    return MakeRows(Plain<R>("of", &R::of), Plain<R>("end", &R::end), Plain<R>("force", &R::force),
                    Plain<R>("moment", &R::moment));
  }
};

/// The results of the element of the same number, ascending by case and end.
class CElemResult : public BaseEntity {
 private:
  template <class Ends>
  static auto Place(Ends& ends, SCaseRef const& ref, int end) {
    return std::partition_point(ends.begin(), ends.end(),
                                [&](EndResult const& result) { return result.IsBefore(ref, end); });
  }

 public:
  std::vector<EndResult> const& Ends() const { return m_ends; }
  /// The result of an end in a case, null where there is none.
  EndResult const* Find(SCaseRef const& ref, int end) const {
    auto const at = Place(m_ends, ref, end);
    return at != m_ends.end() && at->IsAt(ref, end) ? &*at : nullptr;
  }
  /// The same, made where there is none.
  EndResult& At(SCaseRef const& ref, int end) {
    auto const at = Place(m_ends, ref, end);
    if (at != m_ends.end() && at->IsAt(ref, end)) return *at;
    return *m_ends.insert(at, EndResult{ref, end, {}, {}});
  }
  /// What makes it no record that a file may hold, empty when nothing does.
  CString Fault() const {
    for (std::size_t i = 1; i < m_ends.size(); ++i)
      if (!m_ends[i - 1].IsBefore(m_ends[i].of, m_ends[i].end))
        return L"results are not in ascending order of case and end";
    return {};
  }

  friend bool operator==(CElemResult const& a, CElemResult const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(SidField<CElemResult>(), Plain<CElemResult>("ends", &CElemResult::m_ends));
  }

 private:
  std::vector<EndResult> m_ends;
};

/// Results of a case as a whole; model units. Of each value the first is of all modes together, and
/// the one at place n of mode n.
class CCaseResult : public BaseEntity {
 public:
  CCaseResult() = default;
  explicit CCaseResult(SCaseRef const& of) : m_of(of) {}

  SCaseRef const& Of() const { return m_of; }
  void SetOf(SCaseRef const& of) { m_of = of; }
  /// Mass of the analysis, and what of it a mode moves; 0 where there is none.
  double Mass(int mode) const { return Get(m_masses, mode); }
  void SetMass(int mode, double mass) { Put(m_masses, mode, mass); }
  /// Natural period, time units.
  double Period(int mode) const { return Get(m_periods, mode); }
  void SetPeriod(int mode, double period) { Put(m_periods, mode, period); }
  /// Shear at the base.
  double BaseShear(int mode) const { return Get(m_baseShears, mode); }
  void SetBaseShear(int mode, double shear) { Put(m_baseShears, mode, shear); }

  friend bool operator==(CCaseResult const& a, CCaseResult const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CCaseResult;
    return MakeRows(SidField<R>(), Plain<R>("of", &R::m_of), Plain<R>("masses", &R::m_masses),
                    Plain<R>("periods", &R::m_periods), Plain<R>("baseShears", &R::m_baseShears));
  }

 private:
  using Values = std::vector<double>;

  static double Get(Values const& values, int mode) {
    auto const at = static_cast<std::size_t>(mode);
    return mode >= 0 && at < values.size() ? values[at] : 0;
  }
  /// Throws std::out_of_range for a mode below 0.
  static void Put(Values& values, int mode, double value) {
    if (mode < 0) throw std::out_of_range("a mode below 0");
    auto const at = static_cast<std::size_t>(mode);
    if (at >= values.size()) values.resize(at + 1);
    values[at] = value;
  }

  ResultCase m_of;
  Values m_masses;
  Values m_periods;
  Values m_baseShears;
};

}  // namespace Data
}  // namespace Tarvex
