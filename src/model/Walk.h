#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

namespace hullwright {

/// Growing array of owned objects. An entry may be null.
template <class T>
using OwnedArray = std::vector<std::unique_ptr<T>>;

/// Starts a walk: sets the cursor to 1 and takes the first entry; null if there is none.
template <class T>
T* WalkFirst(std::uint32_t& cursor, const OwnedArray<T>& items)
{
  cursor = 1;
  return items.empty() ? nullptr : items.front().get();
}

/// Goes on with a walk; null at the end.
template <class T>
T* WalkNext(std::uint32_t& cursor, const OwnedArray<T>& items)
{
  const std::uint32_t index = cursor++;
  return index < items.size() ? items[index].get() : nullptr;
}

/// Calls `visit` with each entry up to the first null one. The walking position is the object's own
/// `cursor`, so a walk inside `visit` over the same object disturbs this one.
template <class T, class Visit>
void Walk(std::uint32_t& cursor, const OwnedArray<T>& items, Visit visit)
{
  for (T* item = WalkFirst(cursor, items); item != nullptr; item = WalkNext(cursor, items)) {
    visit(*item);
  }
}

/// Walks to the first entry for which `matches` is true; null if there is none up to the first null
/// one.
template <class T, class Matches>
T* WalkTo(std::uint32_t& cursor, const OwnedArray<T>& items, Matches matches)
{
  T* item = WalkFirst(cursor, items);
  while (item != nullptr && !matches(*item)) item = WalkNext(cursor, items);
  return item;
}

/// As `Walk`, but only over what stands in the array at the start, so that `visit` may append to
/// it.
template <class T, class Visit>
void WalkPresent(std::uint32_t& cursor, const OwnedArray<T>& items, Visit visit)
{
  const std::size_t count = items.size();
  std::size_t visited = 0;
  for (const T* item = WalkFirst(cursor, items); item != nullptr && visited < count;
       item = WalkNext(cursor, items), ++visited) {
    visit(*item);
  }
}

/// As `Walk`, without a cursor.
template <class T, class Visit>
void ForEachUpToNull(const OwnedArray<T>& items, Visit visit)
{
  for (const auto& item : items) {
    if (!item) break;
    visit(*item);
  }
}

/// Calls `visit` with each entry that is not null, without a cursor.
template <class T, class Visit>
void ForEachEntry(const OwnedArray<T>& items, Visit visit)
{
  for (const auto& item : items) {
    if (item) visit(*item);
  }
}

/// The first entry that is not null and for which `matches` is true; null if there is none.
template <class T, class Matches>
T* FindEntry(const OwnedArray<T>& items, Matches matches)
{
  const auto found =
      std::ranges::find_if(items, [&](const auto& item) { return item && matches(*item); });
  return found == items.end() ? nullptr : found->get();
}

/// Whether `matches` is true for an entry that is not null.
template <class T, class Matches>
bool AnyEntry(const OwnedArray<T>& items, Matches matches)
{
  return FindEntry(items, matches) != nullptr;
}

/// Whether an object is an entry.
template <class T>
bool HoldsEntry(const OwnedArray<T>& items, const T* object)
{
  return std::ranges::find(items, object, &std::unique_ptr<T>::get) != items.end();
}

}  // namespace hullwright
