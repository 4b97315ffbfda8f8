// Flat and shaded polygons, and outlines that cross themselves.
import { HEIGHT } from "../library.js";
import { call, poke, ref } from "../statements.js";
import { across, colour, corners, down, flagged, placed, slider } from "./controls.js";

const three = [
  across("x0", 240),
  down("y0", 34),
  across("x1", 400),
  down("y1", 276),
  across("x2", 80),
  down("y2", 236),
];
const threePoints = [
  ["x0", "y0"],
  ["x1", "y1"],
  ["x2", "y2"],
];
const four = [
  across("x0", 120),
  down("y0", 50),
  across("x1", 380),
  down("y1", 84),
  across("x2", 330),
  down("y2", 270),
  across("x3", 70),
  down("y3", 220),
];
const fourPoints = [...threePoints, ["x3", "y3"]];
const colours = [0xff5a4f, 0x47d18c, 0x4a7dff, 0xffd84f].map((value, at) =>
  colour(`colour${at}`, value),
);

function star({ cx, cy, size, turn, tips }) {
  const step = Math.max(Math.floor((tips - 1) / 2), 1);
  return Array.from({ length: tips }, (_, at) => {
    const angle = ((turn - 90 + (at * step * 360) / tips) * Math.PI) / 180;
    return [cx + (size / 2) * Math.cos(angle), cy + (size / 2) * Math.sin(angle)].map(
      (value) => Math.round(value * 4) / 4,
    );
  });
}

export const polygons = [
  {
    name: "BRSL_Tri",
    modes: "all",
    controls: [...three, colour("colour", 0x5aa9c4)],
    points: threePoints,
    draw: (v, { mode }) => [
      call("BRSL_Tri", v.x0, v.y0, v.x1, v.y1, v.x2, v.y2, v.colour, flagged(mode)),
    ],
  },
  {
    name: "BRSL_Quad",
    modes: "all",
    controls: [...four, colour("colour", 0x8a6fc4)],
    points: fourPoints,
    draw: (v, { mode }) => [
      call("BRSL_Quad", v.x0, v.y0, v.x1, v.y1, v.x2, v.y2, v.x3, v.y3, v.colour, flagged(mode)),
    ],
  },
  {
    name: "BRSL_TriG",
    modes: "gouraud",
    controls: [...three, ...colours.slice(0, 3)],
    points: threePoints,
    draw: (v, { mode }) => [
      call(
        "BRSL_TriG",
        v.x0,
        v.y0,
        v.colour0,
        v.x1,
        v.y1,
        v.colour1,
        v.x2,
        v.y2,
        v.colour2,
        flagged(mode),
      ),
    ],
  },
  {
    name: "BRSL_QuadG",
    modes: "gouraud",
    controls: [...four, ...colours],
    points: fourPoints,
    draw: (v, { mode }) => [
      call(
        "BRSL_QuadG",
        v.x0,
        v.y0,
        v.colour0,
        v.x1,
        v.y1,
        v.colour1,
        v.x2,
        v.y2,
        v.colour2,
        v.x3,
        v.y3,
        v.colour3,
        flagged(mode),
      ),
    ],
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
    controls: [...placed(300, 0), slider("tips", 3, 25, 7), colour("colour", 0xf7d154)],
    points: [["cx", "cy"]],
    draw: (v, { mode }) => {
      const ring = star(v);
      return [
        poke("heads", 0, 12),
        call("Shape_Set_Buffers", ref("heads"), ref("nodes")),
        ...ring.map(([x, y], at) =>
          call("Shape_BufferEdge", x, y, ...ring[(at + 1) % ring.length], 0, HEIGHT),
        ),
        call("BRSL_Draw_Shape_Span_Buffer", ref("heads", 1), 0, v.colour, mode),
      ];
    },
  },
].map((entry) => ({ ...entry, group: "Polygons" }));
