// A value that a record keeps beside its contents.
#pragma once

#include <boost/make_shared.hpp>
#include <boost/smart_ptr/atomic_shared_ptr.hpp>
#include <utility>

namespace Tarvex::Data {

/// A value that was worked out for a record, or none. A copy of the record takes it along; keeping
/// one in the same record from two threads is no fault.
template <class T>
class KeptValue {
 public:
  using Pointer = boost::shared_ptr<T const>;

  KeptValue() = default;
  KeptValue(KeptValue const& other) noexcept : m_value(other.Get()) {}
  KeptValue& operator=(KeptValue const& other) noexcept {
    m_value.store(other.Get());
    return *this;
  }
  ~KeptValue() = default;

  /// The value, null for none.
  Pointer Get() const noexcept { return m_value.load(); }
  void Set(T value) { m_value.store(boost::make_shared<T const>(std::move(value))); }
  void Clear() noexcept { m_value.store(nullptr); }

 private:
  boost::atomic_shared_ptr<T const> m_value;
};

}  // namespace Tarvex::Data
