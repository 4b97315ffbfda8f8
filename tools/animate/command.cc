#include "tools/animate/command.h"

#include <memory>
#include <string>

#include "host/error.h"
#include "tools/animate/animation.h"
#include "tools/animate/frames.h"
#include "tools/animate/window.h"
#include "tools/arguments.h"
#include "tools/interrupt.h"

namespace brisal::tools {

namespace {

constexpr int32_t kMaxRate = 240;
constexpr int32_t kMaxFrames = 99999;  // what their names have digits for

struct Arguments {
  std::string out;
  bool window = false;
  std::string format = "x32";
  std::string size = "640x480";
  int32_t rate = 30;
  int32_t frames = 0;
};

void CheckRange(const char *option, int32_t value, int32_t first, int32_t last) {
  if (first <= value && value <= last) return;
  throw host::Error(std::string(option) + ": " + std::to_string(value) + " is not " +
                    std::to_string(first) + " to " + std::to_string(last));
}

void Animate(const Arguments &arguments, bool hasOut) {
  if (arguments.window == hasOut) throw host::Error("either --out or --window is needed");
  if (hasOut && arguments.out.empty()) throw host::Error("--out: the folder or file has no name");
  const Size size = ParseSize(arguments.size);
  const int32_t format = ParseFormat(arguments.format).code;
  CheckRange("--rate", arguments.rate, 1, kMaxRate);
  CheckRange("--frames", arguments.frames, 0, kMaxFrames);
  CatchInterrupts();
  if (arguments.window) return PlayInWindow({size, format, arguments.frames});
  const auto turn = static_cast<int32_t>(Animation::kSeconds * arguments.rate);
  Animation animation(size.width, size.height, format);
  WriteFrames(animation,
              {arguments.out, arguments.frames > 0 ? arguments.frames : turn, arguments.rate});
}

}  // namespace

void AddAnimate(CLI::App &app) {
  const auto arguments = std::make_shared<Arguments>();
  CLI::App *animate =
      app.add_subcommand("animate", "Play an evening by the sea, or write it as PNG files");
  const CLI::Option *out =
      animate
          ->add_option("--out", arguments->out,
                       "FILE.apng for one animated PNG, else a folder for numbered PNG files and a "
                       "page that plays them")
          ->type_name("DIR|FILE.apng");
  animate->add_flag("--window", arguments->window,
                    HasWindow() ? "Play it in a window; space pauses, 1 to 5 choose the format"
                                : "Play it in a window (not in this build)");
  animate->add_option("--format", arguments->format, "Pixel format: 565, 555, rgb, x32 or a32")
      ->type_name("FORMAT")
      ->capture_default_str();
  animate->add_option("--size", arguments->size, "Size of the picture")
      ->type_name("WxH")
      ->capture_default_str();
  animate->add_option("--rate", arguments->rate, "Frames a second of what is written")
      ->type_name("N")
      ->capture_default_str();
  animate->add_option("--frames", arguments->frames, "Frames after which it ends")
      ->type_name("N")
      ->group("");
  animate->callback([arguments, out] { Animate(*arguments, out->count() > 0); });
}

}  // namespace brisal::tools
