// Records, lists and programs in the host's memory, as the functions of a family need them.
#pragma once

#include <type_traits>
#include <vector>

#include "support/layouts.h"

// There are many NaNs; all count as one.
uint32_t BitsOf(float value);

struct Contents {
  static constexpr int32_t kRows = 64;          // of an edge buffer
  static constexpr int32_t kVariables = 16;     // of a calculator, of which programs leave alone
  static constexpr int32_t kConstants = 4;      // the last ones, limits of random numbers
  static constexpr int32_t kInstructions = 12;  // of a program

  explicit Contents(const SceneLayout &layout);

  // What a call is given by number, from 1 on.
  template <class Record>
  void *At(int32_t number) {
    const auto i = static_cast<size_t>(number - 1);
    if constexpr (std::is_same_v<Record, Scene_Record>) return &records[i];
    if constexpr (std::is_same_v<Record, Scene_EdgeVectors>) return &edges[i];
    if constexpr (std::is_same_v<Record, Scene_Vertex>) return &records[i].vertices[3];
    if constexpr (std::is_same_v<Record, BRSL_VertexBuffer>) return &corners[i];
    if constexpr (std::is_same_v<Record, BRSL_CollisionSpans>) return plain[i].data();
    if constexpr (std::is_same_v<Record, BRSL_TexturedSpans>) return textured[i].data();
    if constexpr (std::is_same_v<Record, BRSL_Transform>) return &transforms[i];
    if constexpr (std::is_same_v<Record, float>) return variables.data();
    if constexpr (std::is_same_v<Record, int32_t>) return programs[i].data();
    if constexpr (std::is_void_v<Record>) {
      return vertices[i].empty() ? nullptr : vertices[i].data() + vertices[i].size() / 2 + i;
    }
    return nullptr;
  }

  int32_t *RowTable() { return rowTables[shape].data(); }

  // All of it; floats with one NaN, images by which of two they are.
  void AppendTo(std::vector<uint32_t> &words, const void *image1, const void *image2) const;

  std::vector<Scene_Record> records;
  std::vector<Scene_EdgeVectors> edges;
  std::vector<BRSL_VertexBuffer> corners;
  std::vector<int32_t> plain[2];
  std::vector<uint64_t> textured[2];
  std::vector<int32_t> rowTables[2], pools[2];
  int32_t shape = 0;  // which of them are set; a table's nodes lie in its own pool
  std::vector<BRSL_Transform> transforms;
  std::vector<uint8_t> vertices[3];
  std::vector<float> variables;
  std::vector<int32_t> programs[2];
};
