#include "bench/collision.h"

#include <memory>
#include <vector>

namespace brisal::bench {
namespace {

constexpr int kMaxRows = 512;
constexpr uint32_t kMask = 0;

template <class Head, class Entry>
struct List {
  Head head;
  Entry entry[kMaxRows];
};

// Two images of which either is transparent where the other is not, and the lists of squares that show
// them.
struct Shapes {
  explicit Shapes(const Job &job) : images{Image(job, 0), Image(job, 1)} {
    for (int k : {0, 1}) {
      BRSL_VertexBuffer corners = {{0, job.width, job.width, 0},
                                   {0, 0, job.height, job.height},
                                   {0, job.width, job.width, 0},
                                   {0, 0, job.height, job.height}};
      BRSL_SetSrcBuffer(images[k].data(), job.width * BytesOf(job), job.format);
      BRSL_SpanBufferCollisionPolygon(&corners, 4, &textured[k].head, kMask);
    }
    CreateSpanCollision_Rect(&filled.head, 0, 0, job.width, job.height);
  }

  static int BytesOf(const Job &job) { return job.format <= BRSL_FORMAT_555 ? 2 : 4; }

  static std::vector<uint8_t> Image(const Job &job, int parity) {
    std::vector<uint8_t> bytes(static_cast<size_t>(job.width) * job.height * BytesOf(job));
    for (size_t i = 0; i < bytes.size(); ++i) {
      const bool opaque = (i / BytesOf(job)) % 2 == static_cast<size_t>(parity);
      bytes[i] = opaque && job.kind == Kind::kTexturedCollision ? 0xFF : 0;
    }
    return bytes;
  }

  std::vector<uint8_t> images[2];
  List<BRSL_TexturedSpans, BRSL_TexturedSpan> textured[2];
  List<BRSL_CollisionSpans, BRSL_CollisionSpan> filled;
};

}  // namespace

std::function<void(unsigned)> Collision(const Job &job) {
  const auto shapes = std::make_shared<Shapes>(job);
  if (job.kind == Kind::kTexturedCollision) {
    return [shapes](unsigned) {
      BRSL_CompareTexturedSpans(&shapes->textured[0].head, &shapes->textured[1].head);
    };
  }
  return [shapes](unsigned) {
    BRSL_CompareFilledToTexturedSpans(&shapes->filled.head, &shapes->textured[0].head);
  };
}

}  // namespace brisal::bench
