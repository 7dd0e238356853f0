#include "store/record/connection.h"

#include <stdexcept>
#include <string>

namespace Tarvex::Data {

CElemConnect const& ConnectList::At(int place) const {
  static CElemConnect const kFree;
  return place >= 0 && place < Size() ? (*m_places)[static_cast<std::size_t>(place)] : kFree;
}

void ConnectList::Set(int place, CElemConnect const& connect) {
  if (place < 0) throw std::out_of_range("connection at position " + std::to_string(place));
  if (At(place) == connect) return;
  auto places = m_places == nullptr ? std::vector<CElemConnect>() : *m_places;
  auto const at = static_cast<std::size_t>(place);
  if (at >= places.size()) places.resize(at + 1);
  places[at] = connect;
  Assign(std::move(places));
}

void ConnectList::Truncate(int count) {
  if (Size() <= count) return;
  auto places = *m_places;
  places.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
  Assign(std::move(places));
}

void ConnectList::Assign(std::vector<CElemConnect> places) {
  while (!places.empty() && places.back().IsNone()) places.pop_back();
  if (places.empty())
    m_places.reset();
  else
    m_places = std::make_shared<std::vector<CElemConnect> const>(std::move(places));
}

}  // namespace Tarvex::Data
