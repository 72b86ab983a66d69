"""Guns, and where their bullets end."""

from soundmaking.parts import burst, crack, scattered, splinter, thump
from soundmaking.signals import (
    along,
    bandpass,
    chance,
    dying,
    highpass,
    layers,
    louder,
    lowpass,
    noise,
    pressed,
    RATE,
    shaped,
    sine,
    struck,
)


STEEL = ((1720, 0.008, 1), (2650, 0.007, 0.9), (3980, 0.005, 0.8), (5900, 0.003, 0.5))


def steel(rng, pitch, level):
    return louder(
        struck(
            0.1, [(f * pitch, ring, part) for f, ring, part in STEEL], burst(0.004, 0.0015, rng)
        ),
        level,
    )


def loaded(name):
    """The slide goes back and comes forward."""
    rng = chance(name)
    slide = shaped(
        bandpass(noise(0.09, rng), along((0, 2400), (0.09, 3600)), 1.2),
        (0, 0),
        (0.04, 1),
        (0.09, 0.2),
    )
    stop = layers((0, steel(rng, 0.62, 1)), (0, louder(crack(0.06, 900, 0.014, rng), 1.2)))
    home = layers(
        (0, steel(rng, 0.8, 1)),
        (0, louder(thump(0.08, 260, 170, 0.014), 0.6)),
        (0.001, louder(crack(0.06, 1400, 0.014, rng), 1.2)),
    )
    return layers((0, louder(slide, 0.6)), (0.08, stop), (0.13, louder(slide, 0.5)), (0.24, home))


def aimed(name):
    """A hammer is drawn, tooth by tooth, and stays."""
    rng = chance(name)
    teeth = layers(
        *(
            (at, steel(rng, pitch, level))
            for at, pitch, level in ((0, 1.25, 0.5), (0.055, 1.33, 0.6), (0.1, 1.41, 0.7))
        )
    )
    stay = layers(
        (0, steel(rng, 1.05, 1)),
        (
            0,
            louder(
                struck(0.12, ((3110, 0.025, 1), (4730, 0.02, 0.6)), burst(0.002, 0.0008, rng)), 0.35
            ),
        ),
    )
    return layers((0, teeth), (0.17, stay))


def fired(name):
    """A crack, the weight behind it, and walls that throw it back."""
    rng = chance(name)
    edge = layers((0, [1.0, 0.8, 0.3, -0.4, -0.9, -0.6]), (0, louder(burst(0.03, 0.003, rng), 1.3)))
    body = layers(
        (0, louder(lowpass(burst(0.25, 0.035, rng), 1300), 2.2)),
        (0, louder(thump(0.3, 190, 62, 0.05), 0.7)),
    )
    slaps = layers(
        *(
            (at, louder(bandpass(burst(0.08, 0.014, rng), frequency, 0.7), level))
            for at, frequency, level in ((0.075, 1900, 0.5), (0.128, 1300, 0.42), (0.21, 900, 0.3))
        )
    )
    tail = dying(lowpass(noise(0.93, rng), along((0, 2600), (0.3, 900), (0.93, 300))), 0.17, 0.02)
    return layers(
        (0, louder(edge, 3)),
        (0.0005, pressed(body, 1.5)),
        (0, louder(slaps, 1.6)),
        (0.01, louder(tail, 1.1)),
    )


def hit_person(name):
    """It flies near, snaps, and something soft takes it."""
    rng = chance(name)
    soft = lowpass(burst(0.16, 0.03, rng, 0.001), along((0, 900), (0.16, 220)), 1.4)
    wet = scattered(
        0.1,
        14,
        lambda x: x * x,
        lambda r: louder(thump(0.02, 900 * (0.6 + r.random()), 380, 0.004), r.random()),
        rng,
    )
    near = shaped(
        bandpass(noise(0.09, rng), along((0, 2600), (0.09, 5200)), 2), (0, 0), (0.08, 1), (0.09, 0)
    )
    return layers(
        (0, louder(near, 0.9)),
        (0.08, louder(highpass(burst(0.012, 0.0015, rng), 4000), 0.8)),
        (0.086, louder(soft, 2)),
        (0.086, louder(thump(0.14, 190, 95, 0.028), 0.6)),
        (0.1, louder(wet, 0.4)),
    )


def hit_cover(name):
    """A bullet in a board: a hard knock, splinters, and a hum of the whole."""
    rng = chance(name)
    board = struck(
        0.3,
        ((246, 0.04, 1), (417, 0.03, 0.8), (655, 0.02, 0.8), (1480, 0.01, 0.6)),
        burst(0.005, 0.0015, rng),
    )
    chips = scattered(0.22, 20, lambda x: x * x, splinter, rng)
    ring = struck(
        0.35, ((2870, 0.07, 1), (4230, 0.05, 0.8), (6110, 0.03, 0.5)), burst(0.002, 0.0006, rng)
    )
    return layers(
        (0, louder(crack(0.03, 3000, 0.004, rng), 1.4)),
        (0, louder(board, 0.6)),
        (0.012, louder(chips, 0.5)),
        (0.002, louder(ring, 0.12)),
    )


def missed(name):
    """It chips the ground far off and goes on whining."""
    rng = chance(name)
    chip = louder(crack(0.03, 2400, 0.004, rng), 1.1)

    def pitch(t):
        return 1150 + 2300 * 0.1 / (0.1 + t * t * 2.2)

    whine, phase = [], 0.0
    for n in range(int(0.52 * RATE)):
        t = n / RATE
        phase += pitch(t) * (1 + 0.02 * sine(38 * t) + 0.01 * (2 * rng.random() - 1)) / RATE
        whine.append((0.65 + 0.35 * sine(43 * t)) * (sine(phase) + 0.3 * sine(2.01 * phase)))
    air = bandpass(noise(0.52, rng), pitch, 5)
    return layers(
        (0, chip),
        (0.01, louder(shaped(whine, (0, 0), (0.03, 1), (0.2, 0.5), (0.52, 0)), 0.3)),
        (0.01, louder(shaped(air, (0, 0), (0.05, 1), (0.52, 0)), 0.8)),
    )


CUES = {
    "gun-loaded": loaded,
    "gun-aimed": aimed,
    "gun-fired": fired,
    "gun-hit-person": hit_person,
    "gun-hit-cover": hit_cover,
    "gun-missed": missed,
}
