#include "tools/animate/frames.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "host/apng.h"
#include "host/file.h"
#include "host/png.h"
#include "tools/gallery/output_folder.h"
#include "tools/interrupt.h"
#include "tools/progress.h"

namespace brisal::tools {

namespace {

constexpr const char *kPlayer = "index.html";
constexpr const char *kMark = "<meta name=\"generator\" content=\"brisal animate\">";

// Draws the frames one after the other, and tells how many seconds of them are done.
template <class Take>
void EachFrame(Animation &animation, const FrameOptions &options, Take take) {
  const int32_t seconds = (options.frames + options.rate - 1) / options.rate;
  Progress progress(static_cast<size_t>(seconds));
  for (int32_t i = 0; i < options.frames; i++) {
    StopIfInterrupted();
    if (i % options.rate == 0) progress.Step("frames from " + std::to_string(i));
    animation.Draw(static_cast<double>(i) / options.rate);
    take(i);
  }
}

std::string FrameName(int32_t number) {
  char name[32];
  std::snprintf(name, sizeof name, "frame-%05d.png", number);
  return name;
}

// Plays the files in order, without a library and without a network.
std::string Player(const FrameOptions &options, const host::Image &page) {
  return std::string("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n") +
         kMark +
         "\n<title>Brisal animation</title>\n<style>body { background: #101018; text-align: "
         "center; }"
         "</style>\n</head>\n<body>\n<img width=\"" +
         std::to_string(page.Width()) + "\" height=\"" + std::to_string(page.Height()) +
         "\" src=\"" + FrameName(0) +
         "\" alt=\"the animation\">\n<script>\nconst frames = [];\nfor (let i = 0; i < " +
         std::to_string(options.frames) +
         "; i++) {\n  frames[i] = new Image();\n  frames[i].src = `frame-${String(i).padStart(5, "
         "'0')}.png`;\n}\nconst picture = document.querySelector('img');\nfunction show(now) {\n  "
         "picture.src = frames[Math.floor(now / 1000 * " +
         std::to_string(options.rate) +
         ") % frames.length].src;\n  "
         "requestAnimationFrame(show);\n}\nrequestAnimationFrame(show);\n"
         "</script>\n</body>\n</html>\n";
}

void WriteAnimatedPng(Animation &animation, const FrameOptions &options) {
  const host::Image &page = animation.Page();
  host::AnimatedPng file(options.out, page.Width(), page.Height(),
                         static_cast<uint32_t>(options.frames),
                         static_cast<uint16_t>(options.rate));
  EachFrame(animation, options, [&](int32_t) { file.Add(page); });
  file.Commit();
  std::printf("The animation is %s\n", options.out.c_str());
}

void WriteFolder(Animation &animation, const FrameOptions &options) {
  OutputFolder folder(options.out);
  EachFrame(animation, options,
            [&](int32_t i) { host::WritePng(folder.Place(FrameName(i)), animation.Page()); });
  const std::string player = Player(options, animation.Page());
  host::NewFile file(folder.Place(kPlayer));
  std::fwrite(player.data(), 1, player.size(), file.Stream());
  file.Commit();
  folder.Publish(kPlayer, kMark);
  std::printf("The animation is in %s\n", (options.out / kPlayer).c_str());
}

}  // namespace

void WriteFrames(Animation &animation, const FrameOptions &options) {
  if (options.out.extension() == ".apng") return WriteAnimatedPng(animation, options);
  WriteFolder(animation, options);
}

}  // namespace brisal::tools
