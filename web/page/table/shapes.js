// Points, lines, boxes, ellipses and polygons.
import { HEIGHT, WIDTH } from "../library.js";
import { call, packed, poke, ref } from "../statements.js";
import {
  across, colour, corners, down, flagged, insideX, insideY, placed, shapeChoice, slider,
} from "./controls.js";

const spiral = (count, turn) => Array.from({ length: count }, (_, at) => {
  const angle = (at * turn * Math.PI) / 180;
  const radius = Math.sqrt(at / count) * 150;
  return [Math.round(WIDTH / 2 + radius * Math.cos(angle)), Math.round(HEIGHT / 2 + radius * Math.sin(angle))];
});

const dots = ["BRSL_Dot", "BRSL_FastDot"].map((name) => ({
  name,
  group: "Points",
  modes: "all",
  controls: [slider("count", 1, 4000, 2400), slider("turn", 1, 180, 137.5, 0.5), colour("colour", 0xFFFFFF)],
  draw: (v, { mode }) => spiral(v.count, v.turn).map(([x, y]) => call(name, x, y, v.colour, mode)),
}));

const strip = {
  name: "BRSL_DrawStrip",
  group: "Points",
  modes: "all",
  controls: [insideY("y", 60), slider("rows", 1, 200, 150), insideX("x1", 70), insideX("x2", 410),
    colour("colour", 0x3E7C6A)],
  points: [["x1", "y"]],
  draw: (v, { mode }) => Array.from({ length: Math.min(v.rows, HEIGHT - v.y) }, (_, row) =>
    call("BRSL_DrawStrip", v.y + row, v.x1, v.x2, packed(v.colour), mode)),
};

function fan(v) {
  return Array.from({ length: v.lines }, (_, at) => {
    const shift = Math.round((at * (HEIGHT - 1)) / Math.max(v.lines - 1, 1));
    return [v.x1, v.y1, v.x2, shift];
  });
}

const lineEnds = [insideX("x1", 60), insideY("y1", 160), insideX("x2", 440), slider("lines", 1, 80, 24)];

const lines = [
  {
    name: "BRSL_WriteLine",
    modes: "all",
    draw: (v, { mode }) => fan(v).map((ends) => call("BRSL_WriteLine", ...ends, v.colour, flagged(mode))),
  },
  {
    name: "BRSL_WriteDrawModeLine",
    modes: "all",
    draw: (v, { mode }) =>
      fan(v).map((ends) => call("BRSL_WriteDrawModeLine", ...ends, packed(v.colour), mode)),
  },
  {
    name: "BRSL_WriteLine_32Bit",
    modes: "none",
    note: "Draws on 32-bit targets only.",
    draw: (v) => fan(v).map((ends) => call("BRSL_WriteLine_32Bit", ...ends, v.colour, 0)),
  },
].map((entry) => ({
  ...entry, group: "Lines", controls: [...lineEnds, colour("colour", 0xFFE9B0)], points: [["x1", "y1"]],
}));

const twoCorners = [across("x1", 90), down("y1", 60), across("x2", 390), down("y2", 260)];
const cornerPoints = [["x1", "y1"], ["x2", "y2"]];

const boxes = [
  {
    name: "BRSL_Box",
    modes: "all",
    controls: [...twoCorners, colour("colour", 0xE0784A), shapeChoice()],
    draw: (v, { mode }) =>
      [call("BRSL_Box", v.x1, v.y1, v.x2, v.y2, v.colour, flagged(mode, v.shape))],
  },
  {
    name: "BRSL_ShadeBox",
    modes: "gouraud",
    controls: [...twoCorners, colour("colour1", 0x2D6CDF), colour("colour2", 0x36C5A0),
      colour("colour3", 0xFFD166), colour("colour4", 0xEF476F)],
    draw: (v, { mode }) => [call("BRSL_ShadeBox", v.x1, v.y1, v.x2, v.y2, v.colour1, v.colour2, v.colour3,
      v.colour4, flagged(mode))],
  },
].map((entry) => ({ ...entry, group: "Boxes", points: cornerPoints }));

const round = [across("cx", 240), down("cy", 160)];
const radii = [slider("rx", 0, 300, 170), slider("ry", 0, 200, 96)];
const sun = colour("colour", 0xF2B84B);

const ellipses = [
  {
    name: "BRSL_Circle",
    controls: [...round, slider("r", 0, 240, 110), sun, shapeChoice()],
    draw: (v, { mode }) => [call("BRSL_Circle", v.cx, v.cy, v.r, v.colour, flagged(mode, v.shape))],
  },
  {
    name: "BRSL_Ellipse",
    controls: [...round, ...radii, sun, shapeChoice()],
    draw: (v, { mode }) =>
      [call("BRSL_Ellipse", v.cx, v.cy, v.rx, v.ry, v.colour, flagged(mode, v.shape))],
  },
  {
    name: "BRSL_OpenCircle",
    controls: [...round, slider("r", 0, 240, 140), slider("rings", 1, 40, 14), sun],
    draw: (v, { mode }) => Array.from({ length: v.rings }, (_, at) =>
      call("BRSL_OpenCircle", v.cx, v.cy, Math.round((v.r * (at + 1)) / v.rings), v.colour, flagged(mode))),
  },
  {
    name: "BRSL_OpenEllipse",
    controls: [...round, ...radii, slider("rings", 1, 40, 12), sun],
    draw: (v, { mode }) => Array.from({ length: v.rings }, (_, at) =>
      call("BRSL_OpenEllipse", v.cx, v.cy, Math.round((v.rx * (at + 1)) / v.rings),
        Math.round((v.ry * (v.rings - at)) / v.rings), v.colour, flagged(mode))),
  },
  {
    name: "BRSL_OpenEllipseFX",
    note: "Without a draw mode it draws nothing.",
    modes: "flagged",
    controls: [...round, ...radii, sun],
    draw: (v, { mode }) =>
      [call("BRSL_OpenEllipseFX", v.cx, v.cy, v.rx, v.ry, v.colour, flagged(mode), 0)],
  },
  {
    name: "BRSL_FilledEllipse",
    controls: [...round, ...radii, sun],
    draw: (v, { mode }) =>
      [call("BRSL_FilledEllipse", v.cx, v.cy, v.rx, v.ry, packed(v.colour), flagged(mode))],
  },
].map((entry) => ({ modes: "all", ...entry, group: "Circles and ellipses", points: [["cx", "cy"]] }));

const three = [across("x0", 240), down("y0", 34), across("x1", 400), down("y1", 276), across("x2", 80),
  down("y2", 236)];
const threePoints = [["x0", "y0"], ["x1", "y1"], ["x2", "y2"]];
const four = [across("x0", 120), down("y0", 50), across("x1", 380), down("y1", 84), across("x2", 330),
  down("y2", 270), across("x3", 70), down("y3", 220)];
const fourPoints = [...threePoints, ["x3", "y3"]];
const colours = [0xFF5A4F, 0x47D18C, 0x4A7DFF, 0xFFD84F]
  .map((value, at) => colour(`colour${at}`, value));

function star({ cx, cy, size, turn, tips }) {
  const step = Math.max(Math.floor((tips - 1) / 2), 1);
  return Array.from({ length: tips }, (_, at) => {
    const angle = ((turn - 90 + (at * step * 360) / tips) * Math.PI) / 180;
    return [cx + (size / 2) * Math.cos(angle), cy + (size / 2) * Math.sin(angle)]
      .map((value) => Math.round(value * 4) / 4);
  });
}

const polygons = [
  {
    name: "BRSL_Tri",
    modes: "all",
    controls: [...three, colour("colour", 0x5AA9C4)],
    points: threePoints,
    draw: (v, { mode }) =>
      [call("BRSL_Tri", v.x0, v.y0, v.x1, v.y1, v.x2, v.y2, v.colour, flagged(mode))],
  },
  {
    name: "BRSL_Quad",
    modes: "all",
    controls: [...four, colour("colour", 0x8A6FC4)],
    points: fourPoints,
    draw: (v, { mode }) => [call("BRSL_Quad", v.x0, v.y0, v.x1, v.y1, v.x2, v.y2, v.x3, v.y3, v.colour,
      flagged(mode))],
  },
  {
    name: "BRSL_TriG",
    modes: "gouraud",
    controls: [...three, ...colours.slice(0, 3)],
    points: threePoints,
    draw: (v, { mode }) => [call("BRSL_TriG", v.x0, v.y0, v.colour0, v.x1, v.y1, v.colour1, v.x2, v.y2,
      v.colour2, flagged(mode))],
  },
  {
    name: "BRSL_QuadG",
    modes: "gouraud",
    controls: [...four, ...colours],
    points: fourPoints,
    draw: (v, { mode }) => [call("BRSL_QuadG", v.x0, v.y0, v.colour0, v.x1, v.y1, v.colour1, v.x2, v.y2,
      v.colour2, v.x3, v.y3, v.colour3, flagged(mode))],
  },
  {
    name: "BRSL_DrawGouraudPoly",
    modes: "gouraud",
    controls: [...placed(230, 30), ...colours],
    points: [["cx", "cy"]],
    draw: (v, { mode }) => [
      call("BRSL_Quad", ...corners(v).flat(), 0, flagged(mode)),
      call("BRSL_QuadSetGouraud", v.colour0, v.colour1, v.colour2, v.colour3),
      call("BRSL_DrawGouraudPoly", 4, flagged(mode)),
    ],
  },
  {
    name: "BRSL_Draw_Shape_Span_Buffer",
    modes: "all",
    controls: [...placed(300, 0), slider("tips", 3, 25, 7), colour("colour", 0xF7D154)],
    points: [["cx", "cy"]],
    draw: (v, { mode }) => {
      const ring = star(v);
      return [
        poke("heads", 0, 12),
        call("Shape_Set_Buffers", ref("heads"), ref("nodes")),
        ...ring.map(([x, y], at) =>
          call("Shape_BufferEdge", x, y, ...ring[(at + 1) % ring.length], 0, HEIGHT)),
        call("BRSL_Draw_Shape_Span_Buffer", ref("heads", 1), 0, v.colour, mode),
      ];
    },
  },
].map((entry) => ({ ...entry, group: "Polygons" }));

export const shapes = [...dots, strip, ...lines, ...boxes, ...ellipses, ...polygons];
