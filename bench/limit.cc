#include <algorithm>
#include <cstring>

#include "bench/contenders.h"
#include "bench/picture.h"

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

std::vector<Run> RowsOf(const Job &job, const Canvas &canvas) {
  std::vector<Run> rows;
  rows.reserve(job.height);
  for (int y = 0; y < job.height; ++y) {
    rows.push_back({int64_t{y} * canvas.pitch, int64_t{job.width} * canvas.bytesPerPixel});
  }
  return rows;
}

// Runs come from the job's own drawing, solid and of a white texture, on black.
std::vector<Run> RunsOf(Job job, const Canvas &canvas) {
  if (job.IsRectangle()) return RowsOf(job, canvas);
  job.mode = DRAW_SOLID;
  const size_t size = static_cast<size_t>(canvas.pitch) * Canvas::kHeight;
  std::memset(canvas.pixels, 0, size);
  canvas.Target();
  const auto draw = Drawing(job, canvas);
  if (job.source != 0) {
    const Picture picture = Picture::Of(job);
    std::memset(picture.pixels, 0xFF, picture.Pitch() * picture.height);
  }
  draw(0);
  if (job.source != 0) Picture::Of(job);
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

[[gnu::target("avx2")]] void ReadWide(const uint8_t *from, int64_t n) {
  __m256i sum = _mm256_setzero_si256();
  const uint8_t *const last = from + n - 32;
  for (; from < last; from += 32) {
    sum = _mm256_xor_si256(sum, _mm256_loadu_si256(reinterpret_cast<const __m256i *>(from)));
  }
  sum = _mm256_xor_si256(sum, _mm256_loadu_si256(reinterpret_cast<const __m256i *>(last)));
  asm volatile("" : : "x"(sum));
}

[[gnu::target("avx2")]] __m256i XorOf(const uint8_t *a, const uint8_t *b) {
  return _mm256_xor_si256(_mm256_loadu_si256(reinterpret_cast<const __m256i *>(a)),
                          _mm256_loadu_si256(reinterpret_cast<const __m256i *>(b)));
}

[[gnu::target("avx2"), gnu::flatten]] void FlipBy(const uint8_t *from, uint8_t *to, int64_t n) {
  auto *const last = reinterpret_cast<__m256i *>(to + n - 32);
  const __m256i tail = XorOf(from + n - 32, to + n - 32);
  for (int64_t k = 0; k < n - 32; k += 32) {
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(to + k), XorOf(from + k, to + k));
  }
  _mm256_storeu_si256(last, tail);
}

#endif

void CopyRow(const uint8_t *from, int64_t fromSize, uint8_t *to, int64_t toSize) {
  if (fromSize == toSize) {
    std::memcpy(to, from, toSize);
    return;
  }
#if defined(__x86_64__)
  if (__builtin_cpu_supports("avx2")) {
    ReadWide(from, fromSize);
    return StoreWide(to, toSize);
  }
#endif
  for (int64_t k = 0; k < toSize; ++k) to[k] = from[k % fromSize];
}

void MergeRow(const uint8_t *from, int64_t fromSize, uint8_t *to, int64_t toSize) {
#if defined(__x86_64__)
  if (__builtin_cpu_supports("avx2")) {
    if (fromSize == toSize) return FlipBy(from, to, toSize);
    ReadWide(from, fromSize);
    return FlipWide(to, toSize);
  }
#endif
  for (int64_t k = 0; k < toSize; ++k) to[k] ^= from[k % fromSize];
}

// A copy reads its source and writes the target; one that leaves pixels out or mixes them reads the target as well.
Contender CopyLimit(const Job &job, const Canvas &canvas) {
  const bool copies = job.texels == Texels::kOpaque && job.mode == DRAW_SOLID;
  const auto row = copies ? CopyRow : MergeRow;
  return {copies ? "copy" : "merge", [=, picture = Picture::Of(job)](unsigned i) {
            const Point spot = SpotOf(job, i);
            for (int y = 0; y < job.height; ++y) {
              row(picture.At(0, y), picture.Pitch(), canvas.At(spot.x, spot.y + y),
                  int64_t{job.width} * canvas.bytesPerPixel);
            }
          }};
}

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
  if (job.IsCopy()) return {CopyLimit(job, canvas)};
  const std::vector<Run> runs = RunsOf(job, canvas);
  if (runs.empty()) return {};
  const bool isSolid = job.mode == DRAW_SOLID && !job.IsFilter() && job.kind != Kind::kSoftText;
  std::vector<Contender> contenders;
  for (const auto &[name, write] : WritersOf(isSolid, runs, canvas.bytesPerPixel)) {
    contenders.push_back({name, [runs, job, canvas, write = write](unsigned i) {
                            const Point spot = SpotOf(job, i);
                            write(runs, canvas.At(spot.x, spot.y));
                          }});
  }
  return contenders;
}

}  // namespace brisal::bench
