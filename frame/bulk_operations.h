// Scope of a bulk change of whole tables.
#pragma once

#include <mutex>
#include <utility>
#include <vector>

#include "store/model/zel_data.h"

namespace Tarvex {

/// Announces for its lifetime that the records of some modules change in bulk. The counter of the
/// model says how many such scopes are open; the announcement ends with the last of them, on every
/// way out. The mutex guards the counter alone.
class BulkOperations {
 public:
  BulkOperations(CZelData& model, std::mutex& mutex, std::vector<CModule::ModuleId> modules)
      : m_model(model), m_mutex(mutex), m_modules(std::move(modules)) {
    std::lock_guard const lock(m_mutex);
    m_model.AddBulkOperations(m_modules);
    ++m_model.bulkCounter;
  }
  ~BulkOperations() {
    std::lock_guard const lock(m_mutex);
    if (--m_model.bulkCounter < 1) m_model.ClearBulkOperations();
  }
  BulkOperations(BulkOperations const&) = delete;
  BulkOperations& operator=(BulkOperations const&) = delete;

 private:
  CZelData& m_model;
  std::mutex& m_mutex;
  std::vector<CModule::ModuleId> m_modules;
};

}  // namespace Tarvex
