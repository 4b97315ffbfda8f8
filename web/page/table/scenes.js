// Text and captured scenes.
import { call, record, ref, text } from "../statements.js";
import {
  across,
  choice,
  colour,
  corners,
  down,
  flagged,
  option,
  placed,
  shapeChoice,
  slider,
  written,
} from "./controls.js";

const writing = {
  name: "CRF_Draw",
  group: "Text",
  controls: [
    written("text", "Exact, safe, fast."),
    across("x", 28),
    down("y", 44),
    colour("colour", 0xfff4dc),
    slider("alpha", 0, 255, 255),
    choice(
      "drawMode",
      option("1  blended into the target", "1", 1),
      option("0  shaded", "0", 0),
      option("2  over the backdrop colour", "2", 2),
    ),
    colour("backdrop", 0x203040),
  ],
  points: [["x", "y"]],
  needsFont: true,
  draw: (v) => [
    call("CRF_DrawMode", ref("font"), v.drawMode),
    call("CRF_BackdropColour", ref("font"), v.backdrop),
    call("CRF_Draw", ref("font"), text(v.text), 0, v.x, v.y, ((v.alpha << 24) | v.colour) >>> 0),
  ],
};

const scroll = [slider("dx", -400, 400, 0), slider("dy", -300, 300, 0)];

const captured = [
  {
    name: "Scene_Render_Captured_Circle",
    modes: "all",
    controls: [
      ...scroll,
      across("cx", 240),
      down("cy", 160),
      slider("radius", 0, 200, 100),
      colour("colour", 0x6fc3b0),
      shapeChoice(),
    ],
    points: [["cx", "cy"]],
    draw: (v, { mode }) => [
      call(
        "Scene_Write_Capture_Circle",
        record,
        flagged(mode, v.shape),
        v.cx,
        v.cy,
        0,
        v.radius,
        v.colour,
      ),
      call("Scene_Render_Captured_Circle", record, v.dx, v.dy),
    ],
  },
  {
    name: "Scene_Render_Captured_PolygonG",
    modes: "gouraud",
    controls: [
      ...scroll,
      ...placed(230, 24),
      colour("colour0", 0xff5a4f),
      colour("colour1", 0xffd84f),
      colour("colour2", 0x47d18c),
      colour("colour3", 0x4a7dff),
    ],
    points: [["cx", "cy"]],
    draw: (v, { mode }) => [
      call(
        "Scene_Write_Capture_QuadG",
        record,
        flagged(mode),
        ...corners(v).flatMap((place, at) => [...place, v[`colour${at}`]]),
        0,
        2,
      ),
      call("Scene_Render_Captured_PolygonG", record, v.dx, v.dy),
    ],
  },
  {
    name: "Scene_Render_Captured_ShadeBox",
    modes: "gouraud",
    controls: [
      ...scroll,
      across("x1", 100),
      down("y1", 70),
      across("x2", 380),
      down("y2", 250),
      colour("colour0", 0x233b6e),
      colour("colour1", 0x8a4a92),
      colour("colour2", 0xf29e6b),
      colour("colour3", 0xf9d989),
    ],
    points: [
      ["x1", "y1"],
      ["x2", "y2"],
    ],
    draw: (v, { mode }) => [
      call(
        "Scene_Write_Capture_ShadeBox",
        record,
        flagged(mode),
        v.x1,
        v.y1,
        v.x2,
        v.y2,
        0,
        v.colour0,
        v.colour1,
        v.colour2,
        v.colour3,
      ),
      call("Scene_Render_Captured_ShadeBox", record, v.dx, v.dy),
    ],
  },
].map((entry) => ({ ...entry, group: "Captured scenes" }));

export const scenes = [writing, ...captured];
