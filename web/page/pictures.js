// The pictures that the gallery draws over and with, drawn by the library itself: a photograph of
// sorts, a flower and a glow with their alpha.
import { HEIGHT, SIDE, WIDTH } from "./library.js";
import { A32, call, flags, make, named, pitch, ref, symbol } from "./statements.js";

const FILLED = symbol("BRSL_FILLED", 2);
const ADD = symbol("DRAW_ADD", 64);

const MULT = symbol("DRAW_MULT", 2048);
const OR = symbol("DRAW_OR", 512);
const SOLID = symbol("0", 0);
const SHORE = 208;

const into = (block, width, columns, rows) => [
  call("BRSL_SetBuffer", ref(block), pitch(A32, width, columns), named(A32)),
  call("BRSL_SetBufferViewPort", 0, 0, columns, rows),
];

function sky() {
  const bands = [
    [0, 0x16335b],
    [70, 0x3e6c96],
    [130, 0xc9a98c],
    [172, 0xf6c277],
    [SHORE, 0xfbe3a8],
  ];
  const drawn = bands.slice(1).map(([bottom, lower], at) => {
    const [top, upper] = bands[at];
    return call("BRSL_ShadeBox", 0, top, WIDTH, bottom, upper, upper, lower, lower, SOLID);
  });
  for (let radius = 120; radius > 18; radius -= 2) {
    drawn.push(call("BRSL_Circle", 322, 140, radius, 0x030201, flags(ADD)));
  }
  drawn.push(call("BRSL_Circle", 322, 140, 20, 0xfff6d8, FILLED));
  return drawn;
}

function ridge(x, seed, height, roughness) {
  let sum = height;
  for (let wave = 1; wave <= 7; wave += 1) {
    sum += (roughness / wave ** 1.05) * Math.sin((x * wave) / 62 + seed * wave ** 1.3);
  }
  return Math.max(sum, 3);
}

function mountains(seed, height, roughness, crest, foot) {
  const step = 8;
  const drawn = [];
  for (let x = 0; x < WIDTH; x += step) {
    const [left, right] = [x, x + step].map((at) =>
      Math.round(SHORE - ridge(at, seed, height, roughness)),
    );
    drawn.push(
      call(
        "BRSL_QuadG",
        x,
        left,
        crest,
        x + step,
        right,
        crest,
        x + step,
        SHORE,
        foot,
        x,
        SHORE,
        foot,
        SOLID,
      ),
    );
  }
  return drawn;
}

function lake() {
  const drawn = [call("BRSL_SetSrcBuffer", ref("photo"), pitch(A32), named(A32))];
  for (let row = 0; row < HEIGHT - SHORE; row += 1) {
    const near = row / (HEIGHT - SHORE);
    const from = Math.max(SHORE - 1 - Math.round(row * 1.4 + Math.sin(row / (0.8 + 2 * near))), 0);
    const shift = Math.round((0.5 + 5 * near) * Math.sin((row * row) / 240 + 9 / (near + 0.15)));
    drawn.push(call("BRSL_Blit", 0, from, WIDTH, from + 1, 0, SHORE + row, 0, 0));
    drawn.push(call("BRSL_Blit", 0, from, WIDTH, from + 1, shift, SHORE + row, 0, 0));
  }
  drawn.push(
    call(
      "BRSL_ShadeBox",
      0,
      SHORE,
      WIDTH,
      HEIGHT,
      0xe8eef6,
      0xe8eef6,
      0x6c8aa8,
      0x6c8aa8,
      flags(MULT),
    ),
  );
  return drawn;
}

function pine(x, foot, height, colour) {
  const drawn = [];
  for (let tier = 0; tier < 5; tier += 1) {
    const top = foot - height + Math.round((tier * height) / 6.5);
    const half = Math.round(((tier + 1.4) * height) / 17);
    drawn.push(
      call(
        "BRSL_Tri",
        x,
        top,
        x + half,
        top + Math.round(height / 3.4),
        x - half,
        top + Math.round(height / 3.4),
        colour,
        SOLID,
      ),
    );
  }
  drawn.push(
    call("BRSL_Box", x - 2, foot - Math.round(height / 5), x + 2, foot + 4, colour, FILLED),
  );
  return drawn;
}

function photograph() {
  const trees = [
    [14, 318, 150],
    [52, 326, 118],
    [84, 330, 82],
    [470, 322, 176],
    [432, 330, 122],
    [400, 334, 76],
    [120, 336, 50],
  ];
  return [
    ...into("photo", "WIDTH", WIDTH, HEIGHT),
    ...sky(),
    ...mountains(0.7, 74, 26, 0x7e8fa8, 0xe2bc94),
    ...mountains(3.9, 44, 20, 0x4c6480, 0x9a8a82),
    ...mountains(7.2, 18, 11, 0x24405a, 0x3c4e58),
    ...lake(),
    ...trees.flatMap(([x, foot, height], at) =>
      pine(x, foot, height, at % 2 ? 0x17303c : 0x0f2430),
    ),
    call("BRSL_Box", 0, 0, WIDTH, HEIGHT, 0xff000000, flags(FILLED, OR)),
  ];
}

function flower() {
  const middle = SIDE / 2;
  const drawn = [
    ...into("flower", "SIDE", SIDE, SIDE),
    call("BRSL_Box", 0, 0, SIDE, SIDE, 0, FILLED),
  ];
  for (const [petals, distance, radius, colour] of [
    [8, 48, 25, 0xffd8436a],
    [8, 45, 19, 0xffee6c84],
    [8, 26, 15, 0xfff8a29c],
  ]) {
    for (let at = 0; at < petals; at += 1) {
      const turn = ((at + (distance < 30 ? 0.5 : 0)) * 2 * Math.PI) / petals;
      drawn.push(
        call(
          "BRSL_Circle",
          Math.round(middle + distance * Math.cos(turn)),
          Math.round(middle + distance * Math.sin(turn)),
          radius,
          colour,
          FILLED,
        ),
      );
    }
  }
  drawn.push(call("BRSL_Circle", middle, middle, 19, 0xffe9a23b, FILLED));
  drawn.push(call("BRSL_Circle", middle - 2, middle - 2, 14, 0xffffd470, FILLED));
  return drawn;
}

function glow() {
  return [
    ...into("glow", "SIDE", SIDE, SIDE),
    make(
      "light",
      "BRSL_AllocSurfaceDesc",
      named(A32),
      ref("glow"),
      pitch(A32, "SIDE", SIDE),
      SIDE,
      SIDE,
    ),
    call("BRSL_FillRect_PhongMap", ref("light"), SIDE / 2, SIDE / 2, 0xffc46a, 290, 3.7, 0),
  ];
}

export const preparation = [...photograph(), ...flower(), ...glow()];

const BACKDROPS = {
  photo: () => [
    call("BRSL_SetSrcBuffer", ref("photo"), pitch(A32), named(A32)),
    call("BRSL_Blit", 0, 0, WIDTH, HEIGHT, 0, 0, 0, 0),
  ],
  gradient: () => [
    call("BRSL_ShadeBox", 0, 0, WIDTH, HEIGHT, 0x1b2a4a, 0x3b2f63, 0xb06a7a, 0x2f6a78, SOLID),
  ],
  black: () => [call("BRSL_Box", 0, 0, WIDTH, HEIGHT, 0, FILLED)],
};

// The photograph, or a gradient, in the storage of a format.
export function copyOf(block, format, content) {
  return [
    call("BRSL_SetBuffer", ref(block), pitch(format), named(format)),
    call("BRSL_SetBufferViewPort", 0, 0, WIDTH, HEIGHT),
    ...BACKDROPS[content](),
  ];
}

export const targetOf = (format, backdrop) => copyOf("pixels", format, backdrop);
