#include "bench/moves.h"

#include <algorithm>
#include <cstring>

#include "bench/vector_moves.h"

namespace brisal::bench {
namespace {

void Read(const Moves &moves, const uint8_t *picture) {
  uint8_t sum = 0;
  for (const Run &run : moves.reads) {
    const uint8_t *const p = picture + run.offset;
    for (int64_t k = 0; k < run.size; ++k) sum ^= p[k];
  }
  asm volatile("" : : "g"(sum));  // or else nothing would be read
}

void WithMemcpy(const Moves &moves, const uint8_t *picture, uint8_t *spot) {
  for (size_t i = 0; i < moves.writes.size(); ++i) {
    const Run &to = moves.writes[i];
    std::memcpy(spot + to.offset, picture + moves.reads[i].offset, to.size);
  }
}

void WithMemset(const Moves &moves, const uint8_t *picture, uint8_t *spot) {
  Read(moves, picture);
  for (const Run &run : moves.writes) std::memset(spot + run.offset, 0x5A, run.size);
}

void WithBytes(const Moves &moves, const uint8_t *picture, uint8_t *spot) {
  Read(moves, picture);
  for (const Run &run : moves.writes) {
    uint8_t *const p = spot + run.offset;
    for (int64_t k = 0; k < run.size; ++k) p[k] = static_cast<uint8_t>(~p[k]);
  }
}

// For shapes whose runs are single pixels.
template <int kSize>
void StorePixels(const Moves &moves, const uint8_t *, uint8_t *spot) {
  for (const Run &run : moves.writes) std::memset(spot + run.offset, 0x5A, kSize);
}

template <int kSize>
void FlipPixels(const Moves &moves, const uint8_t *, uint8_t *spot) {
  for (const Run &run : moves.writes) {
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

std::vector<NamedMover> MoversOf(bool isSolid, const Moves &moves, int bytesPerPixel) {
  const auto isShorter = [](const Run &a, const Run &b) { return a.size < b.size; };
  const auto [shortest, longest] =
      std::minmax_element(moves.writes.begin(), moves.writes.end(), isShorter);
  const bool reads = !moves.reads.empty();
  if (longest->size == bytesPerPixel && !reads) return {PixelMover(isSolid, bytesPerPixel)};
  std::vector<NamedMover> movers;
  movers.push_back(isSolid ? NamedMover{"memset", WithMemset} : NamedMover{"bytes", WithBytes});
  const auto isAsLong = [](const Run &a, const Run &b) { return a.size == b.size; };
  if (isSolid && std::equal(moves.writes.begin(), moves.writes.end(), moves.reads.begin(),
                            moves.reads.end(), isAsLong)) {
    movers.push_back({"memcpy", WithMemcpy});
  }
  const std::vector<VectorMovers> sets = VectorMoversHere();
  for (const VectorMovers &set : sets) {
    if (reads) {
      movers.push_back(isSolid ? set.copy : set.merge);
    } else {
      movers.push_back(isSolid ? set.store : set.flip);
    }
  }
  if (sets.empty() || !isSolid) return movers;
  if (longest->size >= 256 && !reads) movers.push_back({"rep stos", WithRepStos});
  const bool isLarge = longest->size * static_cast<int64_t>(moves.writes.size()) >= 256 * 1024;
  if (isLarge && shortest->size >= 256) movers.push_back({"streaming", WithStreaming});
  return movers;
}

}  // namespace brisal::bench
