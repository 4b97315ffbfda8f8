#include "tools/gallery/scene.h"

namespace brisal::tools {

namespace {

constexpr size_t kMaxColumn = 70;

// Breaks one long line, after commas where it can, the rest indented.
std::string Wrap(std::string line, size_t indent) {
  std::string result;
  for (bool first = true; indent + line.size() > kMaxColumn; first = false) {
    const size_t comma = line.rfind(", ", kMaxColumn - indent - 1);
    const size_t cut =
        comma != std::string::npos ? comma + 1 : line.rfind(' ', kMaxColumn - indent);
    if (cut == std::string::npos) break;
    result += std::string(indent, ' ') + line.substr(0, cut) + "\n";
    line = line.substr(cut + 1);
    if (first) indent += 4;
  }
  return result + std::string(indent, ' ') + line + "\n";
}

class Layout {
 public:
  std::string Run(const std::string &statements) {
    for (const char c : statements) Take(c);
    Flush();
    return result_;
  }

 private:
  void Take(char c) {
    if (c == ' ' && (line_.empty() || line_.back() == '(')) return;
    if (c == '}' && nested_ == 0) return CloseBlock();
    if (c == ';' && line_.empty() && result_.ends_with("}\n")) return EndWithBlock();
    if (c == '{' && nested_ == 0 && AfterParenthesis()) return OpenBlock();
    if (c == '{') OpenList();
    if (c == '}') CloseList();
    if (c == '(') nested_++;
    if (c == ')') nested_--;
    line_ += c;
    if (c == ';' && nested_ == 0) Flush();
  }

  // A brace after a parenthesis holds statements, any other one a list.
  bool AfterParenthesis() const {
    const size_t before = line_.find_last_not_of(' ');
    return before != std::string::npos && line_[before] == ')';
  }

  void OpenBlock() {
    line_ += '{';
    Flush();
    depth_++;
  }

  void CloseBlock() {
    depth_--;
    line_ += '}';
    Flush();
  }

  // What ends with a block, such as a function object, has its semicolon there.
  void EndWithBlock() {
    result_.back() = ';';
    result_ += '\n';
  }

  // A list of lists gets a line for each of its members.
  void OpenList() {
    nested_++;
    lists_++;
    if (lists_ != 2) return;
    Flush();
    if (!split_) depth_++;
    split_ = true;
  }

  void CloseList() {
    nested_--;
    lists_--;
    if (lists_ != 0 || !split_) return;
    Flush();
    depth_--;
    split_ = false;
  }

  void Flush() {
    const size_t end = line_.find_last_not_of(' ');
    if (end != std::string::npos) result_ += Wrap(line_.substr(0, end + 1), depth_ * 2);
    line_.clear();
  }

  std::string result_;
  std::string line_;
  size_t depth_ = 0;
  int nested_ = 0;  // parentheses and lists
  int lists_ = 0;
  bool split_ = false;
};

}  // namespace

std::string LayOutCode(const std::string &statements) { return Layout().Run(statements); }

void Stage::Show(const char *statements) {
  if (!code_.empty()) code_ += "\n";
  code_ += LayOutCode(statements);
}

}  // namespace brisal::tools
