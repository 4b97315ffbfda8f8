// The drawings of the page as one C program, and what the native library draws by it.
import { execFileSync, spawn } from "node:child_process";
import { createHash } from "node:crypto";
import { mkdtempSync, rmSync, symlinkSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { basename, dirname, join } from "node:path";

const TREE = join(dirname(new URL(import.meta.url).pathname), "../..");
const PIXELS = 480 * 320;

// In the page: a function of C for every case, of the text that the page shows and copies.
export async function sourceOfCases(cases) {
  const { declarations, functionText } = await import("/code.js");
  const { preparation } = await import("/pictures.js");
  const { ENTRIES, drawingOf } = await import("/table.js");
  const { FORMATS } = await import("/statements.js");
  const { functions } = window.gallery.library;
  const parts = cases.map(({ name, values, settings }, at) => {
    const entry = ENTRIES.find((one) => one.name === name);
    const format = FORMATS.find(({ label }) => label === settings.format);
    const { setUp, own } = drawingOf(entry, values, { ...settings, format });
    return functionText(`case${at}`, [...setUp, ...own], functions);
  });
  const calls = cases.map(
    ({ size }, at) => `  case${at}();\n  fwrite(pixels, ${size}, WIDTH * HEIGHT, stdout);`,
  );
  const font = "static CRF_Font *font;\nCRF_Font *WebLoadFont(void *bytes, size_t count);";
  return `${declarations(font)}
${functionText("prepare", preparation, functions)}
${parts.join("\n")}
static uint8_t file[1 << 22];
int main(int argc, char **argv) {
  FILE *const stream = fopen(argv[argc - 1], "rb");
  font = WebLoadFont(file, fread(file, 1, sizeof file, stream));
  if (font == NULL) return 1;
  BRSL_Init_Lib();
  prepare();
${calls.join("\n")}
  return 0;
}
`;
}

function compile(folder, source) {
  const library = process.env.BRISAL_LIBRARY;
  const program = join(folder, "cases");
  writeFileSync(join(folder, "cases.c"), source);
  symlinkSync(library, join(folder, "libbrisal.so.0"));
  const include = [`-I${TREE}/include`, `-I${TREE}`];
  execFileSync("cc", [
    "-std=c99",
    "-Wall",
    "-Werror",
    "-Wno-unused-variable",
    "-O0",
    ...include,
    "-c",
    join(folder, "cases.c"),
    "-o",
    join(folder, "cases.o"),
  ]);
  execFileSync("c++", [
    "-std=c++20",
    ...include,
    `${TREE}/web/load_font.cc`,
    `${TREE}/host/services.cc`,
    join(folder, "cases.o"),
    library,
    `-Wl,-rpath,${folder}`,
    "-o",
    program,
  ]);
  return program;
}

// Gives each case its picture: the pixels as they lie in memory.
export async function drawNatively(source, cases, use) {
  const folder = mkdtempSync(join(tmpdir(), "brisal-"));
  try {
    const program = compile(folder, source);
    const child = spawn(program, [join(process.env.BRISAL_SITE, "text.crf")], {
      stdio: ["ignore", "pipe", "inherit"],
    });
    let [waiting, at] = [[], 0];
    for await (const chunk of child.stdout) {
      waiting.push(chunk);
      while (
        at < cases.length &&
        waiting.reduce((sum, { length }) => sum + length, 0) >= PIXELS * cases[at].size
      ) {
        const all = Buffer.concat(waiting);
        const bytes = PIXELS * cases[at].size;
        use(cases[at], all.subarray(0, bytes));
        waiting = [all.subarray(bytes)];
        at += 1;
      }
    }
    return at;
  } finally {
    rmSync(folder, { recursive: true });
  }
}

export const digest = (bytes) => createHash("sha256").update(bytes).digest("hex");

// What a canvas shows of such pixels: red, green, blue and 255 for each.
export function shown(pixels, label) {
  const rgba = Buffer.alloc(PIXELS * 4, 255);
  const put = (at, red, green, blue) => {
    rgba[4 * at] = red;
    rgba[4 * at + 1] = green;
    rgba[4 * at + 2] = blue;
  };
  for (let at = 0; at < PIXELS; at += 1) {
    if (label === "RGB") put(at, pixels[3 * at], pixels[3 * at + 1], pixels[3 * at + 2]);
    else if (label === "X32" || label === "A32")
      put(at, pixels[4 * at + 2], pixels[4 * at + 1], pixels[4 * at]);
    else {
      const word = pixels[2 * at] | (pixels[2 * at + 1] << 8);
      if (label === "565") put(at, (word >> 8) & 0xf8, (word >> 3) & 0xfc, (word << 3) & 0xf8);
      else put(at, (word >> 7) & 0xf8, (word >> 2) & 0xf8, (word << 3) & 0xf8);
    }
  }
  return rgba;
}
