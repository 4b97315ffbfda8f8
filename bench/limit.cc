#include <algorithm>
#include <cstring>

#include "bench/contenders.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace brisal::bench {
namespace {

// A row of neighbouring bytes that the job touches, relative to its spot.
struct Run {
  int64_t offset;
  int64_t size;
};

// Runs come from the job's own picture, drawn solid in white on black.
std::vector<Run> RunsOf(Job job, const Canvas &canvas) {
  job.mode = DRAW_SOLID;
  const size_t size = static_cast<size_t>(canvas.pitch) * Canvas::kHeight;
  std::memset(canvas.pixels, 0, size);
  canvas.Target();
  Drawing(job, canvas)(0);
  const Point spot = SpotOf(job, 0);
  const int bottom = std::min(Canvas::kHeight, spot.y + job.height + 2);
  std::vector<Run> runs;
  for (int y = std::max(0, spot.y - 2); y < bottom; ++y) {
    const uint8_t *row = canvas.At(0, y);
    bool inside = false;
    for (int x = 0; x < Canvas::kWidth; ++x) {
      const uint8_t *pixel = row + int64_t{x} * canvas.bytesPerPixel;
      const bool touched =
          std::any_of(pixel, pixel + canvas.bytesPerPixel, [](uint8_t byte) { return byte != 0; });
      if (touched && !inside) runs.push_back({pixel - canvas.At(spot.x, spot.y), 0});
      if (touched) runs.back().size += canvas.bytesPerPixel;
      inside = touched;
    }
  }
  return runs;
}

// Write(pointer, size) over all runs of the job's i-th repetition. Always inlined, so that it takes
// on the instruction set of its caller.
template <class Write>
[[gnu::always_inline]] inline void ForRuns(const std::vector<Run> &runs, uint8_t *base,
                                           Write write) {
  for (const Run &run : runs) write(base + run.offset, run.size);
}

using Writer = void (*)(const std::vector<Run> &, uint8_t *);

void WithMemset(const std::vector<Run> &runs, uint8_t *base) {
  ForRuns(runs, base, [](uint8_t *p, int64_t n) { std::memset(p, 0x5A, n); });
}

#if defined(__x86_64__)

void WithRepStos(const std::vector<Run> &runs, uint8_t *base) {
  ForRuns(runs, base, [](uint8_t *p, int64_t n) {
    asm volatile("rep stosb" : "+D"(p), "+c"(n) : "a"(0x5A) : "memory");
  });
}

template <class T>
void Put(uint8_t *p, T value) {
  std::memcpy(p, &value, sizeof value);
}

// Up to 31 bytes, by overlapping words.
void StoreShort(uint8_t *p, int64_t n) {
  constexpr uint64_t kWord = 0x5A5A5A5A5A5A5A5A;
  if (n >= 16) {
    const __m128i value = _mm_set1_epi8(0x5A);
    Put(p, value);
    Put(p + n - 16, value);
  } else if (n >= 8) {
    Put(p, kWord);
    Put(p + n - 8, kWord);
  } else if (n >= 4) {
    Put(p, static_cast<uint32_t>(kWord));
    Put(p + n - 4, static_cast<uint32_t>(kWord));
  } else if (n >= 2) {
    Put(p, static_cast<uint16_t>(kWord));
    Put(p + n - 2, static_cast<uint16_t>(kWord));
  } else {
    *p = 0x5A;
  }
}

[[gnu::target("avx2")]] void StoreWide(uint8_t *p, int64_t n) {
  const __m256i value = _mm256_set1_epi8(0x5A);
  uint8_t *last = p + n - 32;
  for (; p + 96 <= last; p += 128) {
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(p), value);
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(p + 32), value);
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(p + 64), value);
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(p + 96), value);
  }
  for (; p < last; p += 32) _mm256_storeu_si256(reinterpret_cast<__m256i *>(p), value);
  _mm256_storeu_si256(reinterpret_cast<__m256i *>(last), value);
}

[[gnu::target("avx2"), gnu::flatten]] void WithWideStores(const std::vector<Run> &runs,
                                                          uint8_t *base) {
  for (const Run &run : runs) {
    if (run.size >= 32) {
      StoreWide(base + run.offset, run.size);
    } else {
      StoreShort(base + run.offset, run.size);
    }
  }
}

[[gnu::target("avx2")]] void StoreStreaming(uint8_t *p, int64_t n) {
  const __m256i value = _mm256_set1_epi8(0x5A);
  uint8_t *const end = p + n;
  _mm256_storeu_si256(reinterpret_cast<__m256i *>(p), value);
  p = reinterpret_cast<uint8_t *>((reinterpret_cast<uintptr_t>(p) + 31) & ~uintptr_t{31});
  for (; p + 32 <= end; p += 32) _mm256_stream_si256(reinterpret_cast<__m256i *>(p), value);
  _mm256_storeu_si256(reinterpret_cast<__m256i *>(end - 32), value);
}

[[gnu::target("avx2"), gnu::flatten]] void WithStreaming(const std::vector<Run> &runs,
                                                         uint8_t *base) {
  for (const Run &run : runs) StoreStreaming(base + run.offset, run.size);
  _mm_sfence();
}

template <class T>
void Flip(uint8_t *p) {
  T value;
  std::memcpy(&value, p, sizeof value);
  value = static_cast<T>(~value);
  std::memcpy(p, &value, sizeof value);
}

void FlipShort(uint8_t *p, int64_t n) {
  for (; n >= 8; n -= 8, p += 8) Flip<uint64_t>(p);
  if (n & 4) Flip<uint32_t>(p);
  p += n & 4;
  if (n & 2) Flip<uint16_t>(p);
  p += n & 2;
  if (n & 1) Flip<uint8_t>(p);
}

// The last 32 bytes are read before the others are written: no load has to wait for a store.
[[gnu::target("avx2")]] void FlipWide(uint8_t *p, int64_t n) {
  const __m256i ones = _mm256_set1_epi8(-1);
  auto *last = reinterpret_cast<__m256i *>(p + n - 32);
  const __m256i tail = _mm256_xor_si256(_mm256_loadu_si256(last), ones);
  auto *word = reinterpret_cast<__m256i *>(p);
  for (; word + 3 <= last; word += 4) {
    for (int k = 0; k < 4; ++k) {
      _mm256_storeu_si256(word + k, _mm256_xor_si256(_mm256_loadu_si256(word + k), ones));
    }
  }
  for (; word < last; ++word) {
    _mm256_storeu_si256(word, _mm256_xor_si256(_mm256_loadu_si256(word), ones));
  }
  _mm256_storeu_si256(last, tail);
}

[[gnu::target("avx2"), gnu::flatten]] void WithFlips(const std::vector<Run> &runs, uint8_t *base) {
  for (const Run &run : runs) {
    if (run.size >= 32) {
      FlipWide(base + run.offset, run.size);
    } else {
      FlipShort(base + run.offset, run.size);
    }
  }
}

#endif

// Plain words, for processors without wide ones and for shapes whose runs are single pixels.
void WithBytes(const std::vector<Run> &runs, uint8_t *base) {
  ForRuns(runs, base, [](uint8_t *p, int64_t n) {
    for (int64_t k = 0; k < n; ++k) p[k] = static_cast<uint8_t>(~p[k]);
  });
}

template <int kSize>
void StorePixels(const std::vector<Run> &runs, uint8_t *base) {
  ForRuns(runs, base, [](uint8_t *p, int64_t) { std::memset(p, 0x5A, kSize); });
}

template <int kSize>
void FlipPixels(const std::vector<Run> &runs, uint8_t *base) {
  ForRuns(runs, base, [](uint8_t *p, int64_t) {
    for (int k = 0; k < kSize; ++k) p[k] = static_cast<uint8_t>(~p[k]);
  });
}

struct NamedWriter {
  const char *name;
  Writer write;
};

NamedWriter PixelWriter(bool isSolid, int bytesPerPixel) {
  static constexpr Writer kStores[] = {StorePixels<2>, StorePixels<3>, StorePixels<4>};
  static constexpr Writer kFlips[] = {FlipPixels<2>, FlipPixels<3>, FlipPixels<4>};
  return {"pixels", (isSolid ? kStores : kFlips)[bytesPerPixel - 2]};
}

std::vector<NamedWriter> WritersOf(bool isSolid, const std::vector<Run> &runs, int bytesPerPixel) {
  const auto [shortest, longest] = std::minmax_element(
      runs.begin(), runs.end(), [](const Run &a, const Run &b) { return a.size < b.size; });
  if (longest->size == bytesPerPixel) return {PixelWriter(isSolid, bytesPerPixel)};
  std::vector<NamedWriter> writers;
  writers.push_back(isSolid ? NamedWriter{"memset", WithMemset} : NamedWriter{"bytes", WithBytes});
#if defined(__x86_64__)
  if (!__builtin_cpu_supports("avx2")) return writers;
  if (!isSolid) return {{"wide xor", WithFlips}};
  writers.push_back({"wide stores", WithWideStores});
  if (longest->size >= 256) writers.push_back({"rep stos", WithRepStos});
  const bool isLarge = longest->size * static_cast<int64_t>(runs.size()) >= 256 * 1024;
  if (isLarge && shortest->size >= 256) writers.push_back({"streaming", WithStreaming});
#endif
  return writers;
}

}  // namespace

std::vector<Contender> LimitContenders(const Job &job, const Canvas &canvas) {
  const std::vector<Run> runs = RunsOf(job, canvas);
  if (runs.empty()) return {};
  std::vector<Contender> contenders;
  for (const auto &[name, write] : WritersOf(job.mode == DRAW_SOLID, runs, canvas.bytesPerPixel)) {
    contenders.push_back({name, [runs, job, canvas, write = write](unsigned i) {
                            const Point spot = SpotOf(job, i);
                            write(runs, canvas.At(spot.x, spot.y));
                          }});
  }
  return contenders;
}

}  // namespace brisal::bench
