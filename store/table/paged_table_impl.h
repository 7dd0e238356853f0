// Bodies of PagedTable: changing, walking and comparing.
#pragma once

#include <algorithm>

#include "store/table/paged_table.h"

namespace Tarvex {

template <class Record, unsigned PageSize, unsigned ChunkSize>
auto PagedTable<Record, PageSize, ChunkSize>::OwnPage(PlaceOf const& place) -> Page& {
  if (place.chunk >= m_root.size()) m_root.resize(place.chunk + 1);
  auto& chunk = m_root[place.chunk];
  if (chunk == nullptr) {
    chunk = new Chunk;
  } else if (chunk->use_count() > 1) {
    ChunkPtr own(new Chunk);
    std::copy(std::begin(chunk->pages), std::end(chunk->pages), std::begin(own->pages));
    chunk = std::move(own);
  }
  auto& page = chunk->pages[place.page];
  if (page == nullptr) {
    page = new Page;
  } else if (page->use_count() > 1) {
    page = new Page(*page);
  }
  return *page;
}

template <class Record, unsigned PageSize, unsigned ChunkSize>
template <class R>
Record& PagedTable<Record, PageSize, ChunkSize>::Set(int number, R&& record) {
  if (number < 1 || number > kHighestNumber)
    throw std::out_of_range("record number " + std::to_string(number) +
                            " is not from 1 to 100000000");
  auto const place = Place(number);
  auto& page = OwnPage(place);
  m_revision = NextRevision();  // before the store: one that fails may leave half a record
  if (page.Holds(place.slot)) {
    page.At(place.slot) = std::forward<R>(record);
  } else {
    page.Put(place.slot, std::forward<R>(record));
    ++m_count;
    m_highest = std::max(m_highest, number);
    m_existence = m_revision;
  }
  return page.At(place.slot);
}

template <class Record, unsigned PageSize, unsigned ChunkSize>
void PagedTable<Record, PageSize, ChunkSize>::Remove(int first, int count) {
  if (count < 1) return;
  auto const last = std::min<long long>(static_cast<long long>(first) + count - 1, m_highest);
  if (first <= 1 && last >= m_highest) return Clear();
  for (int n = Exist(first) ? first : Next(first); n != 0 && n <= last; n = Next(n)) {
    auto const place = Place(n);
    auto& page = OwnPage(place);
    page.Drop(place.slot);
    --m_count;
    if (page.occupied == 0) m_root[place.chunk]->pages[place.page] = nullptr;
    m_revision = NextRevision();
    m_existence = m_revision;
  }
  if (last >= m_highest) m_highest = Previous(m_highest + 1);
}

template <class Record, unsigned PageSize, unsigned ChunkSize>
int PagedTable<Record, PageSize, ChunkSize>::Next(int number) const {
  if (number >= m_highest) return 0;
  auto place = Place(std::max(number, 0) + 1);
  for (; place.chunk < m_root.size(); ++place.chunk, place.page = 0, place.slot = 0) {
    if (m_root[place.chunk] == nullptr) continue;
    for (; place.page < ChunkSize; ++place.page, place.slot = 0) {
      auto const* page = m_root[place.chunk]->pages[place.page].get();
      auto const bits = page == nullptr ? 0 : page->occupied >> place.slot << place.slot;
      if (bits != 0)
        return Number(place.chunk, place.page, static_cast<unsigned>(std::countr_zero(bits)));
    }
  }
  return 0;
}

template <class Record, unsigned PageSize, unsigned ChunkSize>
int PagedTable<Record, PageSize, ChunkSize>::Previous(int number) const {
  if (number <= 1) return 0;
  auto const end = Place(number);  // first place that is not asked for
  for (auto chunk = std::min(end.chunk + 1, m_root.size()); chunk-- > 0;) {
    if (m_root[chunk] == nullptr) continue;
    for (auto page = chunk == end.chunk ? end.page + 1 : ChunkSize; page-- > 0;) {
      auto const* found = m_root[chunk]->pages[page].get();
      auto bits = found == nullptr ? 0 : found->occupied;
      if (chunk == end.chunk && page == end.page) bits &= (std::uint64_t{1} << end.slot) - 1;
      if (bits != 0) return Number(chunk, page, static_cast<unsigned>(std::bit_width(bits)) - 1);
    }
  }
  return 0;
}

template <class Record, unsigned PageSize, unsigned ChunkSize>
template <class Visit>
void PagedTable<Record, PageSize, ChunkSize>::Difference(PagedTable const& before,
                                                         PagedTable const& after, Visit&& visit) {
  auto const chunkOf = [](PagedTable const& table, std::size_t i) {
    return i < table.m_root.size() ? table.m_root[i].get() : nullptr;
  };
  auto const recordOf = [](Page const* page, unsigned slot) -> Record const* {
    return page != nullptr && page->Holds(slot) ? &page->At(slot) : nullptr;
  };
  for (std::size_t c = 0; c < std::max(before.m_root.size(), after.m_root.size()); ++c) {
    auto const* chunk0 = chunkOf(before, c);
    auto const* chunk1 = chunkOf(after, c);
    if (chunk0 == chunk1) continue;
    for (unsigned p = 0; p < ChunkSize; ++p) {
      auto const* page0 = chunk0 == nullptr ? nullptr : chunk0->pages[p].get();
      auto const* page1 = chunk1 == nullptr ? nullptr : chunk1->pages[p].get();
      if (page0 == page1) continue;
      auto bits =
          (page0 == nullptr ? 0 : page0->occupied) | (page1 == nullptr ? 0 : page1->occupied);
      for (; bits != 0; bits &= bits - 1) {
        auto const slot = static_cast<unsigned>(std::countr_zero(bits));
        visit(Number(c, p, slot), recordOf(page0, slot), recordOf(page1, slot));
      }
    }
  }
}

}  // namespace Tarvex
