#include "bench/moves.h"

#include <algorithm>
#include <cstring>

#include "bench/vector_moves.h"

namespace brisal::bench {
namespace {

void ReadBytes(const uint8_t *p, int64_t n) {
  uint8_t sum = 0;
  for (int64_t k = 0; k < n; ++k) sum ^= p[k];
  asm volatile("" : : "g"(sum));  // or else nothing would be read
}

void WithMemcpy(const std::vector<Run> &runs, const uint8_t *picture, uint8_t *spot) {
  for (const Run &run : runs) std::memcpy(spot + run.offset, picture + run.from, run.size);
}

void WithMemset(const std::vector<Run> &runs, const uint8_t *picture, uint8_t *spot) {
  for (const Run &run : runs) {
    ReadBytes(picture + run.from, run.fromSize);
    std::memset(spot + run.offset, 0x5A, run.size);
  }
}

void WithBytes(const std::vector<Run> &runs, const uint8_t *picture, uint8_t *spot) {
  for (const Run &run : runs) {
    ReadBytes(picture + run.from, run.fromSize);
    uint8_t *const p = spot + run.offset;
    for (int64_t k = 0; k < run.size; ++k) p[k] = static_cast<uint8_t>(~p[k]);
  }
}

// For shapes whose runs are single pixels.
template <int kSize>
void StorePixels(const std::vector<Run> &runs, const uint8_t *, uint8_t *spot) {
  for (const Run &run : runs) std::memset(spot + run.offset, 0x5A, kSize);
}

template <int kSize>
void FlipPixels(const std::vector<Run> &runs, const uint8_t *, uint8_t *spot) {
  for (const Run &run : runs) {
    uint8_t *const p = spot + run.offset;
    for (int k = 0; k < kSize; ++k) p[k] = static_cast<uint8_t>(~p[k]);
  }
}

NamedMover PixelMover(bool isSolid, int bytesPerPixel) {
  static constexpr Mover kStores[] = {StorePixels<2>, StorePixels<3>, StorePixels<4>};
  static constexpr Mover kFlips[] = {FlipPixels<2>, FlipPixels<3>, FlipPixels<4>};
  return {"pixels", (isSolid ? kStores : kFlips)[bytesPerPixel - 2]};
}

}  // namespace

std::vector<NamedMover> MoversOf(bool isSolid, const std::vector<Run> &runs, int bytesPerPixel) {
  const auto [shortest, longest] = std::minmax_element(
      runs.begin(), runs.end(), [](const Run &a, const Run &b) { return a.size < b.size; });
  const bool reads =
      std::any_of(runs.begin(), runs.end(), [](Run run) { return run.fromSize > 0; });
  const bool copies =
      std::all_of(runs.begin(), runs.end(), [](Run run) { return run.fromSize == run.size; });
  if (longest->size == bytesPerPixel && !reads) return {PixelMover(isSolid, bytesPerPixel)};
  std::vector<NamedMover> movers;
  movers.push_back(isSolid ? NamedMover{"memset", WithMemset} : NamedMover{"bytes", WithBytes});
  if (isSolid && copies) movers.push_back({"memcpy", WithMemcpy});
  const std::vector<VectorMovers> sets = VectorMoversHere();
  for (const VectorMovers &set : sets) {
    movers.push_back(isSolid ? set.store : set.flip);
    if (reads) movers.push_back(isSolid ? set.copy : set.merge);
  }
  if (sets.empty() || !isSolid) return movers;
  if (longest->size >= 256 && !reads) movers.push_back({"rep stos", WithRepStos});
  const bool isLarge = longest->size * static_cast<int64_t>(runs.size()) >= 256 * 1024;
  if (isLarge && shortest->size >= 256) movers.push_back({"streaming", WithStreaming});
  return movers;
}

}  // namespace brisal::bench
