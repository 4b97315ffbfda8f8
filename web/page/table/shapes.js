// Points, lines, boxes and ellipses.
import { HEIGHT, WIDTH } from "../library.js";
import { call, packed } from "../statements.js";
import {
  across,
  colour,
  down,
  flagged,
  insideX,
  insideY,
  shapeChoice,
  slider,
} from "./controls.js";

const spiral = (count, turn) =>
  Array.from({ length: count }, (_, at) => {
    const angle = (at * turn * Math.PI) / 180;
    const radius = Math.sqrt(at / count) * 150;
    return [
      Math.round(WIDTH / 2 + radius * Math.cos(angle)),
      Math.round(HEIGHT / 2 + radius * Math.sin(angle)),
    ];
  });

const dots = ["BRSL_Dot", "BRSL_FastDot"].map((name) => ({
  name,
  group: "Points",
  modes: "all",
  controls: [
    slider("count", 1, 4000, 2400),
    slider("turn", 1, 180, 137.5, 0.5),
    colour("colour", 0xffffff),
  ],
  draw: (v, { mode }) => spiral(v.count, v.turn).map(([x, y]) => call(name, x, y, v.colour, mode)),
}));

const strip = {
  name: "BRSL_DrawStrip",
  group: "Points",
  modes: "all",
  controls: [
    insideY("y", 60),
    slider("rows", 1, 200, 150),
    insideX("x1", 70),
    insideX("x2", 410),
    colour("colour", 0x3e7c6a),
  ],
  points: [["x1", "y"]],
  draw: (v, { mode }) =>
    Array.from({ length: Math.min(v.rows, HEIGHT - v.y) }, (_, row) =>
      call("BRSL_DrawStrip", v.y + row, v.x1, v.x2, packed(v.colour), mode),
    ),
};

function fan(v) {
  return Array.from({ length: v.lines }, (_, at) => {
    const shift = Math.round((at * (HEIGHT - 1)) / Math.max(v.lines - 1, 1));
    return [v.x1, v.y1, v.x2, shift];
  });
}

const lineEnds = [
  insideX("x1", 60),
  insideY("y1", 160),
  insideX("x2", 440),
  slider("lines", 1, 80, 24),
];

const lines = [
  {
    name: "BRSL_WriteLine",
    modes: "all",
    draw: (v, { mode }) =>
      fan(v).map((ends) => call("BRSL_WriteLine", ...ends, v.colour, flagged(mode))),
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
  ...entry,
  group: "Lines",
  controls: [...lineEnds, colour("colour", 0xffe9b0)],
  points: [["x1", "y1"]],
}));

const twoCorners = [across("x1", 90), down("y1", 60), across("x2", 390), down("y2", 260)];
const cornerPoints = [
  ["x1", "y1"],
  ["x2", "y2"],
];

const boxes = [
  {
    name: "BRSL_Box",
    modes: "all",
    controls: [...twoCorners, colour("colour", 0xe0784a), shapeChoice()],
    draw: (v, { mode }) => [
      call("BRSL_Box", v.x1, v.y1, v.x2, v.y2, v.colour, flagged(mode, v.shape)),
    ],
  },
  {
    name: "BRSL_ShadeBox",
    modes: "gouraud",
    controls: [
      ...twoCorners,
      colour("colour1", 0x2d6cdf),
      colour("colour2", 0x36c5a0),
      colour("colour3", 0xffd166),
      colour("colour4", 0xef476f),
    ],
    draw: (v, { mode }) => [
      call(
        "BRSL_ShadeBox",
        v.x1,
        v.y1,
        v.x2,
        v.y2,
        v.colour1,
        v.colour2,
        v.colour3,
        v.colour4,
        flagged(mode),
      ),
    ],
  },
].map((entry) => ({ ...entry, group: "Boxes", points: cornerPoints }));

const round = [across("cx", 240), down("cy", 160)];
const radii = [slider("rx", 0, 300, 170), slider("ry", 0, 200, 96)];
const sun = colour("colour", 0xf2b84b);

const ellipses = [
  {
    name: "BRSL_Circle",
    controls: [...round, slider("r", 0, 240, 110), sun, shapeChoice()],
    draw: (v, { mode }) => [call("BRSL_Circle", v.cx, v.cy, v.r, v.colour, flagged(mode, v.shape))],
  },
  {
    name: "BRSL_Ellipse",
    controls: [...round, ...radii, sun, shapeChoice()],
    draw: (v, { mode }) => [
      call("BRSL_Ellipse", v.cx, v.cy, v.rx, v.ry, v.colour, flagged(mode, v.shape)),
    ],
  },
  {
    name: "BRSL_OpenCircle",
    controls: [...round, slider("r", 0, 240, 140), slider("rings", 1, 40, 14), sun],
    draw: (v, { mode }) =>
      Array.from({ length: v.rings }, (_, at) =>
        call(
          "BRSL_OpenCircle",
          v.cx,
          v.cy,
          Math.round((v.r * (at + 1)) / v.rings),
          v.colour,
          flagged(mode),
        ),
      ),
  },
  {
    name: "BRSL_OpenEllipse",
    controls: [...round, ...radii, slider("rings", 1, 40, 12), sun],
    draw: (v, { mode }) =>
      Array.from({ length: v.rings }, (_, at) =>
        call(
          "BRSL_OpenEllipse",
          v.cx,
          v.cy,
          Math.round((v.rx * (at + 1)) / v.rings),
          Math.round((v.ry * (v.rings - at)) / v.rings),
          v.colour,
          flagged(mode),
        ),
      ),
  },
  {
    name: "BRSL_OpenEllipseFX",
    note: "Without a draw mode it draws nothing.",
    modes: "flagged",
    controls: [...round, ...radii, sun],
    draw: (v, { mode }) => [
      call("BRSL_OpenEllipseFX", v.cx, v.cy, v.rx, v.ry, v.colour, flagged(mode), 0),
    ],
  },
  {
    name: "BRSL_FilledEllipse",
    controls: [...round, ...radii, sun],
    draw: (v, { mode }) => [
      call("BRSL_FilledEllipse", v.cx, v.cy, v.rx, v.ry, packed(v.colour), flagged(mode)),
    ],
  },
].map((entry) => ({
  modes: "all",
  ...entry,
  group: "Circles and ellipses",
  points: [["cx", "cy"]],
}));

export const shapes = [...dots, strip, ...lines, ...boxes, ...ellipses];
