// Textured polygons, sprites, text and captured scenes.
import { HEIGHT, SIDE, WIDTH } from "../library.js";
import { A32, X32, call, flags, make, named, pitch, record, ref, symbol, text } from "../statements.js";
import {
  across, choice, colour, corners, down, flagged, option, placed, shapeChoice, slider, written,
} from "./controls.js";

const images = {
  photo: { block: "photo", width: "WIDTH", columns: WIDTH, rows: HEIGHT },
  flower: { block: "flower", width: "SIDE", columns: SIDE, rows: SIDE },
  glow: { block: "glow", width: "SIDE", columns: SIDE, rows: SIDE },
};
const imageChoice = (...names) =>
  choice("texture", ...names.map((name) => ({ label: name, image: images[name] })));
const alphaChoice = choice("format", { label: "A32: its own alpha", format: A32 },
  { label: "X32: mask colour and output effect", format: X32 });

const outputs = choice("outputEffect", option("1  plain", "1", 1), option("2  level", "2", 2),
  option("3  half", "3", 3), option("4  add", "4", 4), option("5  subtract", "5", 5));
const filter = choice("filter", option("bilinear", "0x80000000", 0x80000000), option("off", "0", 0));
const effects = choice("effect", option("none", "0", 0), option("0x40  times level", "0x40", 0x40),
  option("0x800  towards the colour", "0x800", 0x800), option("0x1000  add the colour", "0x1000", 0x1000),
  option("0x2000  subtract the colour", "0x2000", 0x2000), option("0x400  the colour", "0x400", 0x400));
const pipelineControls = [alphaChoice, filter, effects, colour("tintColour", 0x4060C0),
  slider("level", 0, 255, 128), outputs];

const textureOf = ({ texture: { image }, format: { format } }) =>
  make("texture", "BRSL_AllocSurfaceDesc", named(format), ref(image.block),
    pitch(format, image.width, image.columns), image.columns, image.rows);
const MASK = symbol("1", 1);
const UNTINTED = symbol("-1", -1);

const pipelineOf = (v, gouraud = symbol("0", 0)) => [
  textureOf(v),
  make("pipeline", "TPD_BuildSpriteDrawMode", flags(MASK, v.filter, v.effect, gouraud), UNTINTED,
    v.tintColour, v.level),
  call("TPD_SetOutputEffect", ref("pipeline"), v.outputEffect, 0, v.level),
];

const texels = ({ columns, rows }) => [[0, 0], [columns - 1, 0], [columns - 1, rows - 1], [0, rows - 1]];
const vertices = (places, image) => places.flatMap((place, at) => [...place, ...texels(image)[at]]);

const textured = [
  {
    name: "BRSL_TriT",
    controls: [imageChoice("photo", "flower", "glow"), across("x0", 240), down("y0", 30), across("x1", 420),
      down("y1", 250), across("x2", 70), down("y2", 290), ...pipelineControls],
    points: [["x0", "y0"], ["x1", "y1"], ["x2", "y2"]],
    draw: (v) => [
      ...pipelineOf(v),
      call("BRSL_TriT", ref("texture"),
        ...vertices([[v.x0, v.y0], [v.x1, v.y1], [v.x2, v.y2]], v.texture.image), ref("pipeline")),
    ],
  },
  {
    name: "BRSL_QuadT",
    controls: [imageChoice("photo", "flower", "glow"), ...placed(250, -18), ...pipelineControls],
    points: [["cx", "cy"]],
    draw: (v) => [
      ...pipelineOf(v),
      call("BRSL_QuadT", ref("texture"), ...vertices(corners(v), v.texture.image), ref("pipeline")),
    ],
  },
  {
    name: "BRSL_DrawTexture",
    controls: [imageChoice("flower", "glow", "photo"), across("x", 160), down("y", 80), ...pipelineControls],
    points: [["x", "y"]],
    draw: (v) => [
      ...pipelineOf(v), call("BRSL_DrawTexture", ref("texture"), v.x, v.y, ref("pipeline"))],
  },
].map((entry) => ({ ...entry, group: "Textures", backdrop: "gradient" }));

const split = choice("split", option("one polygon", "0", 0), option("two triangles", "1", 1));
// Multiplied by colours without alpha, texels that are blended by their own would vanish.
const lit = choice("light", option("0x200  add", "0x200", 0x200), option("0x100  half", "0x100", 0x100),
  option("0x80  multiply", "0x80", 0x80));

const sprites = [
  {
    name: "BRSL_DrawSpriteQuad",
    controls: [imageChoice("flower", "glow", "photo"), ...placed(240, 15), split, ...pipelineControls],
    draw: (v) => [
      ...pipelineOf(v),
      call("BRSL_DrawSpriteQuad", ref("texture"), ...vertices(corners(v), v.texture.image), ref("pipeline"),
        v.split),
    ],
  },
  {
    name: "BRSL_DrawSpriteRGBQuad",
    controls: [imageChoice("flower", "photo", "glow"), ...placed(260, -10), split, lit,
      colour("colour0", 0xFFFFFF), colour("colour1", 0xFFC080), colour("colour2", 0x4060FF),
      colour("colour3", 0x80FFC0), ...pipelineControls],
    draw: (v) => [
      ...pipelineOf(v, v.light),
      call("BRSL_DrawSpriteRGBQuad", ref("texture"), ...corners(v).flatMap((place, at) =>
        [...place, ...texels(v.texture.image)[at], v[`colour${at}`]]), ref("pipeline"), v.split),
    ],
  },
].map((entry) => ({ ...entry, group: "Sprites", points: [["cx", "cy"]] }));

const writing = {
  name: "CRF_Draw",
  group: "Text",
  controls: [written("text", "Exact, safe, fast."), across("x", 28), down("y", 130), colour("colour", 0xFFF4DC),
    slider("alpha", 0, 255, 255),
    choice("drawMode", option("1  blended into the target", "1", 1), option("0  shaded", "0", 0),
      option("2  over the backdrop colour", "2", 2)), colour("backdrop", 0x203040)],
  points: [["x", "y"]],
  needsFont: true,
  draw: (v) => [
    call("CRF_DrawMode", ref("font"), v.drawMode),
    call("CRF_BackdropColour", ref("font"), v.backdrop),
    call("CRF_Draw", ref("font"), text(v.text), 0, v.x, v.y, ((v.alpha << 24) | v.colour) >>> 0),
  ],
};

const scroll = [slider("dx", -400, 400, 0), slider("dy", -300, 300, 0)];

const scenes = [
  {
    name: "Scene_Render_Captured_Circle",
    modes: "all",
    controls: [...scroll, across("cx", 240), down("cy", 160), slider("radius", 0, 200, 100),
      colour("colour", 0x6FC3B0), shapeChoice()],
    points: [["cx", "cy"]],
    draw: (v, { mode }) => [
      call("Scene_Write_Capture_Circle", record, flagged(mode, v.shape), v.cx, v.cy, 0, v.radius, v.colour),
      call("Scene_Render_Captured_Circle", record, v.dx, v.dy),
    ],
  },
  {
    name: "Scene_Render_Captured_PolygonG",
    modes: "gouraud",
    controls: [...scroll, ...placed(230, 24), colour("colour0", 0xFF5A4F), colour("colour1", 0xFFD84F),
      colour("colour2", 0x47D18C), colour("colour3", 0x4A7DFF)],
    points: [["cx", "cy"]],
    draw: (v, { mode }) => [
      call("Scene_Write_Capture_QuadG", record, flagged(mode), ...corners(v).flatMap((place, at) =>
        [...place, v[`colour${at}`]]), 0, 2),
      call("Scene_Render_Captured_PolygonG", record, v.dx, v.dy),
    ],
  },
  {
    name: "Scene_Render_Captured_ShadeBox",
    modes: "gouraud",
    controls: [...scroll, across("x1", 100), down("y1", 70), across("x2", 380), down("y2", 250),
      colour("colour0", 0x233B6E), colour("colour1", 0x8A4A92), colour("colour2", 0xF29E6B),
      colour("colour3", 0xF9D989)],
    points: [["x1", "y1"], ["x2", "y2"]],
    draw: (v, { mode }) => [
      call("Scene_Write_Capture_ShadeBox", record, flagged(mode), v.x1, v.y1, v.x2, v.y2, 0, v.colour0,
        v.colour1, v.colour2, v.colour3),
      call("Scene_Render_Captured_ShadeBox", record, v.dx, v.dy),
    ],
  },
].map((entry) => ({ ...entry, group: "Captured scenes" }));

export const textures = [...textured, ...sprites, writing, ...scenes]
  .map((entry) => ({ modes: "none", ...entry }));
