#include <SDL.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "host/error.h"
#include "tools/animate/animation.h"
#include "tools/animate/window.h"
#include "tools/interrupt.h"

namespace brisal::tools {

namespace {

using Clock = std::chrono::steady_clock;

host::Error SdlError(const std::string &what) {
  return host::Error("--window: " + what + ": " + SDL_GetError());
}

// Without a display SDL would draw into memory that nobody sees. A driver that the user names in the
// environment comes first.
void KeepToScreens() {
#if defined(__unix__)
  const bool wayland = std::getenv("WAYLAND_DISPLAY") != nullptr;
  SDL_SetHint(SDL_HINT_VIDEODRIVER, wayland ? "wayland,x11" : "x11");
#endif
}

class Sdl {
 public:
  Sdl() {
    KeepToScreens();
    if (SDL_Init(SDL_INIT_VIDEO) != 0) throw SdlError("no display");
  }
  ~Sdl() { SDL_Quit(); }
  Sdl(const Sdl &) = delete;
  Sdl &operator=(const Sdl &) = delete;
};

struct Destroy {
  void operator()(SDL_Window *window) const { SDL_DestroyWindow(window); }
  void operator()(SDL_Renderer *renderer) const { SDL_DestroyRenderer(renderer); }
  void operator()(SDL_Texture *texture) const { SDL_DestroyTexture(texture); }
};

uint32_t TextureFormat(int32_t format) {
  switch (format) {
    case BRSL_FORMAT_565: return SDL_PIXELFORMAT_RGB565;
    case BRSL_FORMAT_555: return SDL_PIXELFORMAT_RGB555;
    case BRSL_FORMAT_RGB: return SDL_PIXELFORMAT_RGB24;
    default: return SDL_PIXELFORMAT_RGB888;
  }
}

// Frames a second, counted anew every half second.
class FrameCounter {
 public:
  // True where there is a new figure.
  bool Count() {
    constexpr double kInterval = 0.5;
    frames_++;
    const double seconds = std::chrono::duration<double>(Clock::now() - start_).count();
    if (seconds < kInterval) return false;
    rate_ = frames_ / seconds;
    frames_ = 0;
    start_ = Clock::now();
    return true;
  }
  double Rate() const { return rate_; }

 private:
  Clock::time_point start_ = Clock::now();
  int32_t frames_ = 0;
  double rate_ = 0;
};

class Player {
 public:
  explicit Player(const WindowOptions &options)
      : size_(options.size),
        window_(SDL_CreateWindow("Brisal", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                 size_.width, size_.height, SDL_WINDOW_RESIZABLE)) {
    if (!window_) throw SdlError("no window");
    renderer_.reset(SDL_CreateRenderer(window_.get(), -1, SDL_RENDERER_PRESENTVSYNC));
    if (!renderer_) renderer_.reset(SDL_CreateRenderer(window_.get(), -1, SDL_RENDERER_SOFTWARE));
    if (!renderer_) throw SdlError("nothing to draw with");
    SDL_RenderSetLogicalSize(renderer_.get(), size_.width, size_.height);
    SwitchTo(options.format);
  }

  // Until the window is closed, or for so many frames.
  void Run(int32_t frames) {
    Clock::time_point last = Clock::now();
    for (int32_t shown = 0; open_ && (frames == 0 || shown < frames); shown++) {
      StopIfInterrupted();
      for (SDL_Event event; SDL_PollEvent(&event);) Handle(event);
      const Clock::time_point now = Clock::now();
      if (!paused_) time_ += std::chrono::duration<double>(now - last).count();
      last = now;
      Show();
      if (counter_.Count()) ShowTitle();
    }
  }

  double Rate() const { return counter_.Rate(); }

 private:
  void SwitchTo(int32_t format) {
    animation_ = std::make_unique<Animation>(size_.width, size_.height, format);
    format_ = format;
    texture_.reset(SDL_CreateTexture(renderer_.get(), TextureFormat(format),
                                     SDL_TEXTUREACCESS_STREAMING, size_.width, size_.height));
    if (!texture_) throw SdlError("no texture");
    ShowTitle();
  }

  void Handle(const SDL_Event &event) {
    if (event.type == SDL_QUIT) open_ = false;
    if (event.type != SDL_KEYDOWN) return;
    const SDL_Keycode key = event.key.keysym.sym;
    if (key == SDLK_ESCAPE || key == SDLK_q) open_ = false;
    if (key == SDLK_SPACE) paused_ = !paused_;
    if (key == SDLK_f) SwitchTo(format_ % BRSL_FORMAT_A32 + 1);
    if (SDLK_1 <= key && key <= SDLK_5) SwitchTo(key - SDLK_0);
  }

  void Show() {
    animation_->Draw(time_);
    animation_->DrawNote(std::to_string(std::lround(Rate())) + " frames a second");
    const host::Image &page = animation_->Page();
    if (SDL_UpdateTexture(texture_.get(), nullptr, page.Row(0), page.Pitch()) != 0) {
      throw SdlError("the picture cannot be shown");
    }
    SDL_RenderClear(renderer_.get());
    SDL_RenderCopy(renderer_.get(), texture_.get(), nullptr, nullptr);
    SDL_RenderPresent(renderer_.get());
  }

  void ShowTitle() {
    char title[160];
    std::snprintf(title, sizeof title,
                  "Brisal: %s, %.0f frames a second%s (space: pause, 1-5 or F: format, Esc: quit)",
                  kFormats[format_ - 1].caption, Rate(), paused_ ? ", paused" : "");
    SDL_SetWindowTitle(window_.get(), title);
  }

  Sdl sdl_;
  Size size_;
  std::unique_ptr<SDL_Window, Destroy> window_;
  std::unique_ptr<SDL_Renderer, Destroy> renderer_;
  std::unique_ptr<SDL_Texture, Destroy> texture_;
  std::unique_ptr<Animation> animation_;
  int32_t format_ = 0;
  FrameCounter counter_;
  double time_ = 0;
  bool open_ = true;
  bool paused_ = false;
};

}  // namespace

bool HasWindow() { return true; }

void PlayInWindow(const WindowOptions &options) {
  const Clock::time_point start = Clock::now();
  Player player(options);
  player.Run(options.frames);
  if (options.frames == 0) return;
  const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
  std::printf("%d frames, %.0f a second\n", options.frames, options.frames / seconds);
}

}  // namespace brisal::tools
