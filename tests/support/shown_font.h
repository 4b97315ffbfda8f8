// Fonts of unknown bytes, and a host that they cannot ask for everything.
#pragma once

#include "brisal/brisal.h"
#include "support/recording_host.h"

// It has a megabyte at most for whoever asks.
class FrugalHost : public RecordingHost {
 public:
  FrugalHost();
};

constexpr int32_t kShownCodes = 6;

// Draws the first codes of a font at many places, most of them cut, and measures them.
void ShowFont(CRF_Font *font);
