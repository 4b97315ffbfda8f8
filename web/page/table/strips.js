// Lines of one pixel, many of them side by side.
import { HEIGHT, WIDTH } from "../library.js";
import { call, ref, surfaceOf } from "../statements.js";
import { across, colour, down, slider } from "./controls.js";

const rows = (count, first) => Array.from({ length: count }, (_, at) => first + at);
const shades = [colour("colour1", 0x2aa6a0), colour("colour2", 0xf5b25a)];

export const strips = [
  {
    name: "BRSL_HoriGouraudStrip",
    controls: [
      across("x1", 60),
      down("y", 90),
      across("x2", 420),
      slider("rows", 1, 200, 120),
      ...shades,
    ],
    points: [["x1", "y"]],
    draw: (v) =>
      rows(v.rows, v.y).map((y) =>
        call(
          "BRSL_HoriGouraudStrip",
          v.x1 + Math.round(14 * Math.sin(y / 9)),
          v.colour1,
          v.x2,
          v.colour2,
          y,
        ),
      ),
  },
  {
    name: "BRSL_VertGouraudStrip",
    controls: [
      across("x", 120),
      down("y1", 50),
      down("y2", 270),
      slider("columns", 1, 300, 240),
      ...shades,
    ],
    points: [["x", "y1"]],
    draw: (v) =>
      rows(v.columns, v.x).map((x) =>
        call(
          "BRSL_VertGouraudStrip",
          v.y1 + Math.round(12 * Math.sin(x / 11)),
          v.colour1,
          v.y2,
          v.colour2,
          x,
        ),
      ),
  },
  {
    name: "BRSL_HoriTextureStrip",
    source: (v, { format }) => [format, "photo"],
    controls: [
      across("x1", 60),
      down("y", 60),
      across("x2", 420),
      slider("rows", 1, 240, 200),
      slider("wave", 0, 60, 26),
    ],
    points: [["x1", "y"]],
    draw: (v, { format }) => [
      surfaceOf(format, "source"),
      ...rows(v.rows, 0).map((row) => {
        const bend = Math.round(v.wave * Math.sin(row / 14));
        const line = Math.round((row * (HEIGHT - 1)) / v.rows) * 65536;
        return call(
          "BRSL_HoriTextureStrip",
          ref("surface"),
          v.x1 + bend,
          0,
          line,
          v.x2 + bend,
          (WIDTH - 1) * 65536,
          line,
          v.y + row,
        );
      }),
    ],
  },
  {
    name: "BRSL_VertTextureStrip",
    source: (v, { format }) => [format, "photo"],
    controls: [
      across("x", 60),
      down("y1", 50),
      down("y2", 270),
      slider("columns", 1, 400, 360),
      slider("wave", 0, 60, 24),
    ],
    points: [["x", "y1"]],
    draw: (v, { format }) => [
      surfaceOf(format, "source"),
      ...rows(v.columns, 0).map((column) => {
        const bend = Math.round(v.wave * Math.sin(column / 26));
        const u = Math.round((column * (WIDTH - 1)) / v.columns) * 65536;
        return call(
          "BRSL_VertTextureStrip",
          ref("surface"),
          v.y1 + bend,
          u,
          0,
          v.y2 + bend,
          u,
          (HEIGHT - 1) * 65536,
          v.x + column,
        );
      }),
    ],
  },
].map((entry) => ({ ...entry, group: "Strips" }));
