#include "tools/gallery/gallery.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "host/file.h"
#include "host/png.h"
#include "tools/font/raster.h"
#include "tools/gallery/fit.h"
#include "tools/gallery/landscape.h"
#include "tools/gallery/output_folder.h"
#include "tools/gallery/page.h"
#include "tools/gallery/painter.h"
#include "tools/interrupt.h"
#include "tools/progress.h"

namespace brisal::tools {

namespace {

constexpr const char *kIndex = "index.html";

host::Image Background(const GalleryOptions &options) {
  if (options.picture.empty()) return Landscape(options.width, options.height);
  return Fit(host::ReadPng(options.picture), options.width, options.height);
}

class Gallery {
 public:
  Gallery(const GalleryOptions &options, OutputFolder &folder, const host::Image &background)
      : options_(options), folder_(folder), painter_(background, DejaVuFont) {}

  Section Draw(const Scene &scene, Progress &progress) {
    Section section{&scene, {}, {}};
    std::vector<FormatInfo> formats = options_.formats;
    std::stable_partition(formats.begin(), formats.end(),
                          [&](const FormatInfo &format) { return format.code != scene.lead; });
    for (const FormatInfo &format : formats) {
      progress.Step(std::string(scene.title) + ", " + format.name);
      if (scene.variants.empty()) {
        if (section.groups.empty()) section.groups.emplace_back();
        section.groups[0].shots.push_back(DrawPlain(section, format));
      } else {
        section.groups.push_back(DrawVariants(section, format));
      }
    }
    return section;
  }

 private:
  Shot DrawPlain(Section &section, const FormatInfo &format) {
    const std::string file = std::string(section.scene->name) + "-" + format.name + ".png";
    return DrawShot(section, nullptr, format, file);
  }

  Group DrawVariants(Section &section, const FormatInfo &format) {
    Group group{format.caption, {}};
    for (const Variant &variant : section.scene->variants) {
      const std::string file =
          std::string(section.scene->name) + "-" + variant.name + "-" + format.name + ".png";
      group.shots.push_back(DrawShot(section, &variant, format, file));
    }
    return group;
  }

  // The section keeps the code of the last drawing: the others are the same or stop earlier.
  Shot DrawShot(Section &section, const Variant *variant, const FormatInfo &format,
                const std::string &file) {
    StopIfInterrupted();
    const Drawing drawing = painter_.Draw(*section.scene, variant, format.code);
    section.code = drawing.code;
    host::WritePng(folder_.Place(file), drawing.image);
    return {file, variant ? variant->caption : format.caption, drawing.image.Width(),
            drawing.image.Height()};
  }

  const GalleryOptions &options_;
  OutputFolder &folder_;
  const Painter painter_;
};

void WriteText(const std::filesystem::path &path, const std::string &text) {
  host::NewFile file(path);
  std::fwrite(text.data(), 1, text.size(), file.Stream());
  file.Commit();
}

}  // namespace

void RunGallery(const GalleryOptions &options) {
  const host::Image background = Background(options);
  OutputFolder folder(options.out);
  Gallery gallery(options, folder, background);

  std::vector<Section> sections;
  {
    Progress progress(Scenes().size() * options.formats.size());
    for (const Scene &scene : Scenes()) sections.push_back(gallery.Draw(scene, progress));
  }
  WriteText(folder.Place(kIndex), Page(sections, options.width, options.height));
  folder.Publish(kIndex, kPageMark);
  std::printf("The gallery is in %s\n", (options.out / kIndex).c_str());
}

}  // namespace brisal::tools
