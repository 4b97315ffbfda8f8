#include "tools/gallery/page.h"

namespace brisal::tools {

const char *PageStyle() {
  return R"css(
:root { color-scheme: light dark; --ground: #f6f4f0; --card: #fff; --ink: #22262c; --soft: #6b7077;
  --line: #e0dcd4; --accent: #c2552d; --code: #f3f0ea; }
@media (prefers-color-scheme: dark) {
  :root { --ground: #14171c; --card: #1c2027; --ink: #e6e8ea; --soft: #98a0aa;
    --line: #2b313a; --accent: #f0905c; --code: #12151a; }
}
* { box-sizing: border-box; }
html { scroll-behavior: smooth; }
body { margin: 0; background: var(--ground); color: var(--ink);
  font: 17px/1.6 system-ui, -apple-system, "Segoe UI", Roboto, Ubuntu, sans-serif; }
a { color: inherit; text-decoration: none; }
header, main, footer { max-width: 76rem; margin: 0 auto; padding: 0 1.5rem; }
header { padding-top: 4rem; padding-bottom: 1.5rem; }
h1 { font-size: clamp(2.4rem, 6vw, 4rem); line-height: 1.1; letter-spacing: -.03em; margin: 0; }
h1 + p { font-size: 1.2rem; color: var(--soft); max-width: 44rem; margin: .8rem 0 0; }
.facts { color: var(--soft); font-size: .9rem; margin: 1rem 0 0; }
nav { position: sticky; top: 0; z-index: 1; background: var(--ground);
  border-bottom: 1px solid var(--line); }
nav div { max-width: 76rem; margin: 0 auto; padding: .7rem 1.5rem; display: flex; gap: 1.3rem;
  overflow-x: auto; white-space: nowrap; font-size: .92rem; }
nav a { color: var(--soft); }
nav a:hover { color: var(--accent); }
section { padding: 3rem 0 1rem; scroll-margin-top: 2.6rem; }
h2 { font-size: 1.7rem; letter-spacing: -.02em; margin: 0; }
h3 { font-size: 1rem; font-weight: 600; margin: 1.6rem 0 .7rem; }
section > p { margin: .3rem 0 1.3rem; color: var(--soft); max-width: 44rem; }
figure { margin: 0; background: var(--card); border: 1px solid var(--line); border-radius: 10px;
  overflow: hidden; }
figure img { display: block; width: 100%; height: auto; }
figcaption { padding: .45rem .8rem; font-size: .85rem; color: var(--soft); }
.lead { display: grid; grid-template-columns: minmax(0, 1fr); gap: 1rem; align-items: start; }
@media (min-width: 62rem) { .lead { grid-template-columns: minmax(0, 8fr) minmax(0, 7fr); } }
.row { display: grid; gap: 1rem; margin-top: 1rem;
  grid-template-columns: repeat(auto-fill, minmax(min(15rem, 45%), 1fr)); }
pre { margin: 0; padding: 1rem 1.1rem; max-height: 33rem; overflow: auto; background: var(--code);
  border: 1px solid var(--line); border-radius: 10px; tab-size: 2;
  font: 12px/1.55 ui-monospace, "SF Mono", Menlo, Consolas, "DejaVu Sans Mono", monospace; }
pre b { color: var(--accent); font-weight: 600; }
details { margin-top: 1rem; border-top: 1px solid var(--line); }
summary { cursor: pointer; padding: .8rem 0 0; font-weight: 600; }
summary:hover { color: var(--accent); }
footer { padding-top: 3rem; padding-bottom: 4rem; color: var(--soft); font-size: .9rem; }
)css";
}

}  // namespace brisal::tools
