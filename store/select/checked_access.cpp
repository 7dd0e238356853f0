#include "store/select/checked_access.h"

namespace Tarvex {

void ThrowBadSubscript() { throw std::out_of_range("invalid vector subscript"); }
void ThrowBadMapKey() { throw std::out_of_range("invalid map<K, T> key"); }
void ThrowBadUnorderedMapKey() { throw std::out_of_range("invalid unordered_map<K, T> key"); }

}  // namespace Tarvex
