// Tables whose records are of several classes.
#pragma once

#include "store/record/task_slot.h"

namespace Tarvex {

/// The classes of the records of a table: one for most.
template <class Record>
struct RecordClasses {
  static constexpr bool kSeveral = false;

  /// Calls visit(static_cast<Class*>(nullptr)) for each class.
  template <class Visit>
  static void ForEach(Visit&& visit) {
    visit(static_cast<Record*>(nullptr));
  }
  /// Calls visit(record) with a record as the class that it is of.
  template <class Visit>
  static void Take(Record const& record, Visit&& visit) {
    visit(record);
  }
  /// Calls visit(a, b) with two records of one class. @return whether they are of one
  template <class Visit>
  static bool TakeTwo(Record const& a, Record const& b, Visit&& visit) {
    visit(a, b);
    return true;
  }
};

template <>
struct RecordClasses<Zel::TaskSlot> {
  static constexpr bool kSeveral = true;

  template <class Visit>
  static void ForEach(Visit&& visit) {
    Zel::ForEachTaskClass(visit);
  }
  template <class Visit>
  static void Take(Zel::TaskSlot const& slot, Visit&& visit) {
    Zel::VisitTask(slot.Get(), visit);
  }
  template <class Visit>
  static bool TakeTwo(Zel::TaskSlot const& a, Zel::TaskSlot const& b, Visit&& visit) {
    if (a.Get().ClassName() != b.Get().ClassName()) return false;
    Take(a, [&]<class Task>(Task const& task) { visit(task, static_cast<Task const&>(b.Get())); });
    return true;
  }
};

}  // namespace Tarvex
