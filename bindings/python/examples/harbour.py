"""Draws a harbour at dusk with nothing but Brisal, and saves it: python harbour.py [PICTURE.png]"""

import math
import random
import sys

from brisal import (BRSL_FILLED, BRSL_FORMAT_X32, DRAW_ADD, DRAW_HALF, DRAW_MULT, BRSL_Blit,
                    BRSL_Box, BRSL_Circle, BRSL_FillRect_Blur, BRSL_QuadG, BRSL_ScaleSurface,
                    BRSL_ShadeBox, BRSL_Tri, BRSL_WriteLine, Canvas, TQ_RGB_ALPHA_BLEND)

# Everything is drawn at twice its size; blurred and halved, its edges are smooth.
WIDTH, HEIGHT = 1920, 1080
SHORE = 660
SUN = 1230, 478
SKY = [(0, 0x0B1638), (260, 0x2B2F63), (430, 0x8A4A72), (560, 0xE8795A), (SHORE, 0xFFD08A)]


def draw_sky(chance):
    for (top, upper), (bottom, lower) in zip(SKY, SKY[1:]):
        BRSL_ShadeBox(0, top, WIDTH, bottom, upper, upper, lower, lower, 0)
    for _ in range(420):
        x, depth = chance.randrange(WIDTH), chance.random()
        light = int(150 * (1 - depth) * chance.random())
        BRSL_Box(x, int(depth * 380), x + 2, int(depth * 380) + 2, light * 0x10101,
                 BRSL_FILLED | DRAW_ADD)
    for radius in range(440, 60, -9):
        BRSL_Circle(*SUN, radius, 0x030201, DRAW_ADD)
    BRSL_Circle(*SUN, 62, 0xFFF2CC, BRSL_FILLED)


def ridge(x, seed, height, roughness):
    """The height of a range of hills at a column: waves of falling length and size."""
    waves = range(1, 9)
    return height + sum(roughness / wave ** 1.15 * math.sin(x * wave / 230 + seed * wave ** 1.4)
                        for wave in waves)


def draw_hills(seed, height, roughness, crest, foot):
    step = 16
    for x in range(0, WIDTH, step):
        left, right = (int(SHORE - max(ridge(at, seed, height, roughness), 4))
                       for at in (x, x + step))
        BRSL_QuadG(x, left, crest, x + step, right, crest, x + step, SHORE, foot, x, SHORE, foot, 0)


def draw_town(chance):
    x = 150
    while x < 860:
        width, height = chance.randrange(18, 42), chance.randrange(22, 74)
        wall = TQ_RGB_ALPHA_BLEND(0x241C38, 0x3E2A48, chance.randrange(100))
        BRSL_Box(x, SHORE - height, x + width, SHORE, wall, BRSL_FILLED)
        BRSL_Tri(x - 3, SHORE - height, x + width + 3, SHORE - height, x + width // 2,
                 SHORE - height - chance.randrange(8, 22), 0x1C1530, 0)
        for window in range(x + 5, x + width - 7, 9):
            for floor in range(SHORE - height + 8, SHORE - 12, 15):
                if chance.random() < 0.45:
                    BRSL_Box(window, floor, window + 4, floor + 6, 0xFFC46A, BRSL_FILLED)
                    BRSL_Circle(window + 2, floor + 3, 10, 0x181004, DRAW_ADD)
        x += width + chance.randrange(0, 12)
    draw_lighthouse(930)


def draw_lighthouse(x):
    for at, half in enumerate(range(150, 0, -1)):
        width = 7 + half // 17
        shade = 0x8E3B48 if half // 30 % 2 else 0xD9B8A8
        BRSL_Box(x - width, SHORE - 151 + at, x + width, SHORE - 150 + at, shade, BRSL_FILLED)
    BRSL_Box(x - 11, SHORE - 174, x + 11, SHORE - 150, 0xFFE9B0, BRSL_FILLED)
    BRSL_Tri(x - 14, SHORE - 174, x + 14, SHORE - 174, x, SHORE - 196, 0x1C1530, 0)
    for spread in range(10, 80, 5):
        BRSL_Tri(x, SHORE - 162, x - 930, SHORE - 200 - spread, x - 930, SHORE - 200 + spread,
                 0x030302, DRAW_ADD)
        BRSL_Circle(x, SHORE - 162, spread + 8, 0x0A0805, DRAW_ADD)
    BRSL_Tri(x, SHORE - 12, x + 70, SHORE, x - 70, SHORE, 0x1C1530, 0)


def draw_water(canvas):
    """The upper part upside down, its rows shifted by waves that grow towards the viewer."""
    mirror = Canvas(canvas.pixels[SHORE - 1::-1], canvas.format)
    depth = HEIGHT - SHORE
    with mirror.source():
        for row in range(depth):
            near = row / depth
            at = min(int(row * 1.35 + 2 * math.sin(row / (1.5 + 5 * near))), SHORE - 1)
            shift = int((2 + 22 * near) * math.sin(row * row / 2400 + 60 / (near + 0.12)))
            for start in (shift - WIDTH, shift, shift + WIDTH):
                BRSL_Blit(0, at, WIDTH, at + 1, start, SHORE + row, 0, 0)
    BRSL_Box(0, SHORE, WIDTH, HEIGHT, 0xB8C4DC, BRSL_FILLED | DRAW_MULT)
    BRSL_ShadeBox(0, SHORE, WIDTH, HEIGHT, 0xFFFFFF, 0xFFFFFF, 0x5868A0, 0x5868A0, DRAW_MULT)


def draw_glitter(chance):
    for _ in range(900):
        near = chance.random() ** 1.4
        y = int(SHORE + 2 + near * (HEIGHT - SHORE - 4))
        x = int(chance.gauss(SUN[0], 26 + 90 * near))
        half = int(3 + 22 * near * chance.random())
        BRSL_Box(x - half, y, x + half, y + 2, 0x40301C, BRSL_FILLED | DRAW_ADD)


def draw_boat(x, y, size):
    hull, sail = 0x140F22, 0xF4D9B8
    BRSL_QuadG(x - size, y - size // 5, hull, x + size, y - size // 5, 0x2C2036,
               x + 3 * size // 4, y + size // 8, hull, x - 3 * size // 4, y + size // 8, hull, 0)
    BRSL_Tri(x - size // 12, y - 2 * size, x - size // 12, y - size // 3, x - 4 * size // 5,
             y - size // 3, 0xC89A84, 0)
    BRSL_Tri(x + size // 12, y - 9 * size // 4, x + size // 12, y - size // 3, x + 5 * size // 6,
             y - size // 3, sail, 0)
    BRSL_WriteLine(x, y - 9 * size // 4, x, y - size // 5, 0x201828, 0)
    for row in range(size):
        half = int((size - row) * (0.62 + 0.2 * math.sin(row / 2.2)))
        BRSL_Box(x - half, y + size // 8 + row, x + half, y + size // 8 + row + 1, 0x141020,
                 BRSL_FILLED | DRAW_HALF)


def draw_birds(chance):
    for _ in range(9):
        x, y = chance.randrange(420, 900), chance.randrange(230, 380)
        for side in (-1, 1):
            for t in range(15):
                BRSL_Box(x + side * t, y - int(7 * math.sin(t / 4.8)), x + side * t + 2,
                         y - int(7 * math.sin(t / 4.8)) + 2, 0x1A1530, BRSL_FILLED)


def draw():
    chance = random.Random(7)
    large = Canvas.new(WIDTH, HEIGHT, BRSL_FORMAT_X32)
    with large.target():
        draw_sky(chance)
        draw_hills(1.3, 120, 60, 0x6B4672, 0xC0706C)
        draw_hills(4.1, 66, 42, 0x46325E, 0x8A5468)
        draw_hills(8.8, 24, 26, 0x2C2348, 0x4A3454)
        draw_town(chance)
        draw_birds(chance)
        draw_water(large)
        draw_glitter(chance)
        draw_boat(1500, 800, 74)
        draw_boat(560, 742, 38)
        draw_boat(1120, 704, 20)
    picture = Canvas.new(WIDTH // 2, HEIGHT // 2, BRSL_FORMAT_X32)
    with large.target():
        surface = large.surface()
        BRSL_FillRect_Blur(surface, 9)
        BRSL_ScaleSurface(surface, picture.surface(), 0)
    return picture


if __name__ == "__main__":
    draw().save(sys.argv[1] if len(sys.argv) > 1 else "harbour.png")
