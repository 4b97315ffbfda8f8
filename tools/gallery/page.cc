#include "tools/gallery/page.h"

#include <cctype>

#include "tools/info.h"

namespace brisal::tools {

namespace {

std::string Escape(const std::string &text) {
  std::string result;
  for (const char c : text) {
    switch (c) {
      case '&': result += "&amp;"; break;
      case '<': result += "&lt;"; break;
      case '>': result += "&gt;"; break;
      case '"': result += "&quot;"; break;
      default: result += c;
    }
  }
  return result;
}

bool IsWord(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

bool IsLibraryName(const std::string &word) {
  for (const char *prefix :
       {"BRSL_", "TPD_", "CRF_", "RFCI_", "TQ_", "Scene", "Shape_", "CreateSpanCollision_",
        "RotateVertexList", "Rotate2DVertexList", "LerpVertexList"}) {
    if (word.starts_with(prefix)) return true;
  }
  return false;
}

// The library's own names stand out.
std::string Highlight(const std::string &code) {
  std::string result;
  for (size_t i = 0; i < code.size();) {
    size_t end = i;
    while (end < code.size() && IsWord(code[end])) end++;
    const std::string word = code.substr(i, end - i);
    if (IsLibraryName(word) && end < code.size() && code[end] == '(') {
      result += "<b>" + word + "</b>";
    } else {
      result += word;
    }
    if (end < code.size()) result += Escape(code.substr(end, 1));
    i = end + 1;
  }
  return result;
}

std::string Size(int32_t width, int32_t height) {
  return std::to_string(width) + " × " + std::to_string(height);
}

std::string Figure(const Shot &shot, const std::string &title) {
  const std::string caption = Escape(shot.caption);
  return "<figure><a href=\"" + shot.file + "\"><img src=\"" + shot.file + "\" width=\"" +
         std::to_string(shot.width) + "\" height=\"" + std::to_string(shot.height) +
         "\" loading=\"lazy\" alt=\"" + Escape(title) + ", " + caption + "\"></a><figcaption>" +
         caption + "</figcaption></figure>\n";
}

std::string Code(const Section &section) {
  return "<pre><code>" + Highlight(section.code) + "</code></pre>\n";
}

std::string Row(const std::vector<Shot> &shots, const std::string &title) {
  std::string html = "<div class=\"row\">\n";
  for (const Shot &shot : shots) html += Figure(shot, title);
  return html + "</div>\n";
}

// The last format is shown large beside the code; the others below.
std::string PlainBody(const Section &section) {
  std::vector<Shot> others = section.groups[0].shots;
  const Shot lead = others.back();
  others.pop_back();
  const std::string title = section.scene->title;
  std::string html = "<div class=\"lead\">\n" + Figure(lead, title) + Code(section) + "</div>\n";
  if (!others.empty()) html += Row(others, title);
  return html;
}

// The last format in the open, the others folded away.
std::string VariantBody(const Section &section) {
  const std::string title = section.scene->title;
  const Group &lead = section.groups.back();
  std::string html = "<h3>" + Escape(lead.caption) + "</h3>\n" + Row(lead.shots, title);
  for (size_t i = 0; i + 1 < section.groups.size(); i++) {
    const Group &group = section.groups[i];
    html += "<details><summary>" + Escape(group.caption) + "</summary>\n" +
            Row(group.shots, title) + "</details>\n";
  }
  return html + "<details><summary>The code</summary>\n" + Code(section) + "</details>\n";
}

std::string Body(const Section &section) {
  const Scene &scene = *section.scene;
  const std::string body = scene.variants.empty() ? PlainBody(section) : VariantBody(section);
  return std::string("<section id=\"") + scene.name + "\">\n<h2>" + Escape(scene.title) +
         "</h2>\n<p>" + Escape(scene.text) + "</p>\n" + body + "</section>\n";
}

std::string Head(int32_t width, int32_t height) {
  return std::string("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n") +
         kPageMark +
         "\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
         "<title>Brisal gallery</title>\n<style>" +
         PageStyle() +
         "</style>\n</head>\n<body>\n<header>\n<h1>Brisal</h1>\n"
         "<p>A software rasteriser in one small library. Every picture here was drawn by the calls "
         "printed beside it, over a photograph, in plain memory.</p>\n<p class=\"facts\">Version " +
         Version() + " · " + Size(width, height) + " pixels · instruction set " + InstructionSet() +
         "</p>\n</header>\n";
}

std::string Navigation(const std::vector<Section> &sections) {
  std::string html = "<nav><div>\n";
  for (const Section &section : sections) {
    html += std::string("<a href=\"#") + section.scene->name + "\">" +
            Escape(section.scene->title) + "</a>\n";
  }
  return html + "</div></nav>\n";
}

}  // namespace

std::string Page(const std::vector<Section> &sections, int32_t width, int32_t height) {
  std::string html = Head(width, height) + Navigation(sections) + "<main>\n";
  for (const Section &section : sections) html += Body(section);
  return html +
         "</main>\n<footer>In the code, w and h are the width and height of the target, s is the "
         "smaller of the two. Sprites and textures are computed. Pictures of narrower formats are "
         "widened for the screen. Click a "
         "picture to see it alone.</footer>\n</body>\n</html>\n";
}

}  // namespace brisal::tools
