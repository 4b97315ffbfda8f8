// What a function of the table can be given by hand.
import { HEIGHT, WIDTH } from "../library.js";
import { flags, symbol } from "../statements.js";

export const slider = (name, least, most, value, step = 1) => ({
  kind: "slider",
  name,
  least,
  most,
  value,
  step,
});
export const across = (name, value) => slider(name, -80, WIDTH + 80, value);
export const down = (name, value) => slider(name, -80, HEIGHT + 80, value);
// For functions that do not clip.
export const insideX = (name, value) => slider(name, 0, WIDTH - 1, value);
export const insideY = (name, value) => slider(name, 0, HEIGHT - 1, value);
export const colour = (name, value) => ({ kind: "colour", name, value });
export const choice = (name, ...options) => ({ kind: "choice", name, options, value: 0 });
export const option = (label, c, value) => ({ label, ...symbol(c, value) });
export const written = (name, value) => ({ kind: "text", name, value });

export const shapeChoice = (first = "filled") => {
  const both = [option("filled", "BRSL_FILLED", 2), option("outline", "BRSL_OUTLINE", 1)];
  return choice("shape", ...(first === "filled" ? both : both.reverse()));
};

export const MODES = [
  { label: "solid", c: "DRAW_SOLID", value: 2, gouraud: true },
  { label: "alpha", c: "DRAW_ALPHA", value: 16, gouraud: false },
  { label: "half", c: "DRAW_HALF", value: 32, gouraud: true },
  { label: "add", c: "DRAW_ADD", value: 64, gouraud: true },
  { label: "sub", c: "DRAW_SUB", value: 128, gouraud: true },
  { label: "and", c: "DRAW_AND", value: 256, gouraud: false },
  { label: "or", c: "DRAW_OR", value: 512, gouraud: false },
  { label: "xor", c: "DRAW_XOR", value: 1024, gouraud: false },
  { label: "mult", c: "DRAW_MULT", value: 2048, gouraud: true },
  { label: "revsub", c: "DRAW_REVSUB", value: 4096, gouraud: true },
];

// Shapes carry the mode in their flags, where solid is 0.
export const flagged = (mode, ...others) =>
  flags(...others, mode.value === 2 ? symbol("0", 0) : mode);

// The corners of a square about a point, turned by degrees, from the top left clockwise.
export function corners({ cx, cy, size, turn }) {
  const angle = (turn * Math.PI) / 180;
  const [dx, dy] = [(Math.cos(angle) * size) / 2, (Math.sin(angle) * size) / 2];
  return [
    [-dx + dy, -dy - dx],
    [dx + dy, dy - dx],
    [dx - dy, dy + dx],
    [-dx - dy, -dy + dx],
  ].map(([x, y]) => [Math.round(cx + x), Math.round(cy + y)]);
}

export const placed = (size = 220, turn = 12) => [
  across("cx", WIDTH / 2),
  down("cy", HEIGHT / 2),
  slider("size", 8, 420, size),
  slider("turn", -180, 180, turn),
];
