// Statements as C, for reading and as a whole program.
import { BLOCKS, HEIGHT, SIDE, WIDTH } from "./library.js";
import { withReleases } from "./statements.js";

const COLUMNS = 92;

const hex = (value) => `0x${(value >>> 0).toString(16).toUpperCase().padStart(6, "0")}`;

function quoted(codes) {
  const escaped = codes.map((code) => {
    if (code === 34 || code === 92) return `\\${String.fromCharCode(code)}`;
    return code >= 32 && code < 127
      ? String.fromCharCode(code)
      : `\\${code.toString(8).padStart(3, "0")}`;
  });
  return `"${escaped.join("")}"`;
}

function number(value, { name, type }) {
  if (type === "float") return Number.isInteger(value) ? `${value}.0f` : `${value}f`;
  return /colour|tint|^[abcd]$/i.test(name) ? hex(value) : String(value);
}

function argument(value, parameter, functions) {
  if (typeof value === "number") return number(value, parameter);
  if (value.codes) return quoted(value.codes);
  if (value.call) return callText(value.call, functions);
  if (value.c) return value.c;
  return value.offset ? `${value.block} + ${value.offset}` : value.block;
}

function callText({ name, args }, functions) {
  const { arguments: parameters } = functions.get(name);
  const head = /^(Copy|Fill)Memory$/.test(name) ? `(${name})` : name;
  const said = args.map((value, at) => argument(value, parameters[at], functions));
  return `${head}(${said.join(", ")})`;
}

function broken(line, indent) {
  if (line.length <= COLUMNS) return line;
  const cut = line.lastIndexOf(", ", COLUMNS) + 1;
  return cut > indent.length
    ? `${line.slice(0, cut)}\n${broken(indent + line.slice(cut + 1), indent)}`
    : line;
}

function lineOf(statement, functions) {
  if (statement.poke) return `${statement.poke}[${statement.index}] = ${statement.value};`;
  const text = `${callText(statement, functions)};`;
  if (!statement.variable) return text;
  return `${functions.get(statement.name).result}${statement.variable} = ${text}`;
}

export const linesOf = (statements, functions) =>
  statements.map((statement) => broken(lineOf(statement, functions), "    "));

// Long repetitions say the same with other numbers; the first of them are enough to read.
export function excerpt(statements, functions, most = 6) {
  const lines = [];
  for (let at = 0; at < statements.length;) {
    let end = at + 1;
    while (end < statements.length && statements[end].name === statements[at].name) end += 1;
    const shown = end - at > most ? at + most - 2 : end;
    lines.push(...linesOf(statements.slice(at, shown), functions));
    if (shown < end) lines.push(`/* and ${end - shown} more like these */`);
    at = end;
  }
  return lines.join("\n");
}

export function functionText(name, statements, functions) {
  const body = linesOf(withReleases(statements, functions), functions);
  const indented = body
    .join("\n")
    .split("\n")
    .map((line) => `  ${line}`)
    .join("\n");
  return `static void ${name}(void) {\n${indented}\n}\n`;
}

export function declarations(fontText) {
  const blocks = Object.entries(BLOCKS)
    .filter(([name]) => name !== "shown")
    .map(([name, [type, count]]) => `static ${type} ${name}[${count}];`);
  return `#include <brisal/brisal.h>
#include <stdio.h>

enum { WIDTH = ${WIDTH}, HEIGHT = ${HEIGHT}, SIDE = ${SIDE} };
${blocks.join("\n")}
static Scene_Record record;
${fontText}
`;
}

// A program that writes the picture's pixels, as they lie in memory, to its output.
export function programText({ preparation, statements, format, ownPhoto, needsFont }, functions) {
  const font = needsFont
    ? "static CRF_Font *font; /* CRF_Load gives one, once GCF_Retrieve has had services */"
    : "";
  const photo = ownPhoto
    ? "  /* Fill photo with 0xAARRGGBB words of your photograph here. */\n"
    : "";
  return `${declarations(font)}
${functionText("prepare", preparation, functions)}
${functionText("draw", statements, functions)}
int main(void) {
  BRSL_Init_Lib();
  prepare();
${photo}  draw();
  return fwrite(pixels, ${format.size}, WIDTH * HEIGHT, stdout) != WIDTH * HEIGHT;
}
`;
}
