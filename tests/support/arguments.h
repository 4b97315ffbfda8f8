// Random arguments, by the kinds that the table of calls gives.
#pragma once

#include "support/calls.h"
#include "support/random.h"

// extreme: coordinates and the like may be any number.
int32_t ArgumentOf(Random &random, const SceneLayout &scene, const Call &call, int index,
                   bool extreme);

// The same for the families from kText on; what these have in common with the others they leave to
// DrawingArgumentOf.
int32_t HostArgumentOf(Random &random, const SceneLayout &scene, const Call &call, int index,
                       bool extreme);
int32_t DrawingArgumentOf(Random &random, const SceneLayout &scene, const Call &call, int index,
                          bool extreme);

int32_t Anything(Random &random);
int32_t RandomColour(Random &random);
int32_t RandomFlags(Random &random);
float RandomFloat(Random &random);
float RandomLimit(Random &random);  // of random numbers, which low limits make slow
int32_t Clamped(int64_t value);
