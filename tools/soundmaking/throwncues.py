"""Furniture and people in flight, and how they land."""

from soundmaking.parts import (
    burst,
    clink,
    cloth,
    crack,
    creak,
    hump,
    scattered,
    splinter,
    throat,
    thump,
    whoosh,
    WOOD,
)
from soundmaking.signals import (
    along,
    bandpass,
    chance,
    layers,
    louder,
    lowpass,
    noise,
    pressed,
    shaped,
    spread_modes,
    struck,
)


SEAT = ((356, 0.014, 1), (611, 0.011, 0.9), (1035, 0.008, 0.7), (1640, 0.005, 0.5))


def table_flipped(name):
    """It tips, groans, bangs down on its edge, and what stood on it rolls off."""
    rng = chance(name)
    tip = creak(
        0.26,
        along((0, 40), (0.26, 75)),
        ((270, 0.012, 1), (520, 0.01, 0.9), (880, 0.007, 0.7)),
        rng,
    )
    bang = struck(0.4, spread_modes(104, WOOD, 0.07, rng), burst(0.015, 0.004, rng))
    again = struck(0.3, spread_modes(126, WOOD, 0.05, rng), burst(0.01, 0.003, rng))
    glasses = layers(
        *(
            (at, louder(clink(rng, 2600, 0.03), level))
            for at, level in ((0, 0.8), (0.05, 1), (0.14, 0.6), (0.2, 0.5))
        )
    )
    return layers(
        (0, louder(shaped(tip, (0, 0.2), (0.2, 1), (0.26, 0)), 0.4)),
        (0.25, louder(bang, 0.7)),
        (0.25, louder(crack(0.06, 800, 0.014, rng), 1.6)),
        (0.43, louder(again, 0.3)),
        (0.3, louder(glasses, 0.24)),
    )


def table_thrown(name):
    """Something large that turns over in the air."""
    rng = chance(name)

    def turning(seconds, rate):
        level = hump(seconds, 0.55)
        return lambda t: level(t) * (0.35 + 0.65 * abs(1 - (t * rate) % 2))

    low = whoosh(0.55, along((0, 130), (0.3, 330), (0.55, 190)), turning(0.55, 15), rng, 0.9)
    high = whoosh(0.55, along((0, 500), (0.3, 900), (0.55, 600)), turning(0.55, 15), rng, 1.5)
    return layers((0, louder(low, 2)), (0, louder(high, 0.8)))


def table_landed(name):
    """It breaks: the crack, the top in two, splinters, a leg that rolls."""
    rng = chance(name)
    top = struck(0.4, spread_modes(92, WOOD, 0.06, rng), burst(0.03, 0.008, rng))
    breaks = layers(
        *(
            (at, louder(crack(0.05, frequency, 0.007, rng, 1.2), level))
            for at, frequency, level in (
                (0, 1500, 1.5),
                (0.018, 2600, 1),
                (0.045, 1100, 1.2),
                (0.09, 1900, 0.8),
            )
        )
    )
    splinters = scattered(0.62, 75, lambda x: x * x, splinter, rng)
    leg = layers(
        *(
            (
                at,
                louder(
                    struck(
                        0.1, [(f * 1.3, r * 1.3, l) for f, r, l in SEAT], burst(0.004, 0.001, rng)
                    ),
                    level,
                ),
            )
            for at, level in ((0.36, 0.7), (0.5, 0.5), (0.6, 0.4), (0.68, 0.3), (0.74, 0.22))
        )
    )
    return layers(
        (0, pressed(layers((0, louder(top, 0.7)), (0, louder(breaks, 2.2))), 1.4)),
        (0, louder(thump(0.3, 120, 60, 0.05), 0.5)),
        (0.02, louder(splinters, 0.9)),
        (0, louder(leg, 0.6)),
    )


def chair_thrown(name):
    """Its legs scrape, and it is off the ground."""
    rng = chance(name)
    scrape = creak(
        0.24,
        along((0, 170), (0.16, 290), (0.24, 250)),
        ((720, 0.008, 1), (1240, 0.006, 1), (2130, 0.004, 0.7), (3300, 0.003, 0.4)),
        rng,
        0.3,
    )
    flight = whoosh(0.3, along((0, 500), (0.18, 1200), (0.3, 700)), hump(0.3, 0.5), rng, 1.3)
    return layers(
        (0, louder(shaped(scrape, (0, 0.1), (0.15, 1), (0.24, 0)), 0.28)),
        (0.2, louder(flight, 1.2)),
    )


def chair_landed(name):
    """It clatters, leg by leg."""
    rng = chance(name)
    knocks = (
        (0, 1, 1),
        (0.075, 1.22, 0.6),
        (0.13, 0.87, 0.8),
        (0.235, 1.1, 0.5),
        (0.29, 1.35, 0.35),
        (0.36, 0.95, 0.4),
        (0.4, 1.2, 0.2),
    )
    clatter = layers(
        *(
            (
                at,
                louder(
                    struck(
                        0.14, [(f * pitch, r, l) for f, r, l in SEAT], burst(0.005, 0.0015, rng)
                    ),
                    level,
                ),
            )
            for at, pitch, level in knocks
        )
    )
    return layers(
        (0, louder(clatter, 0.7)),
        (0, louder(crack(0.04, 1100, 0.006, rng), 0.9)),
        (0, louder(thump(0.1, 210, 120, 0.02), 0.5)),
    )


def person_thrown(name):
    """A cry cut short, and clothes in the wind."""
    rng = chance(name)
    cry = throat(
        0.3,
        along((0, 150), (0.1, 205), (0.3, 165)),
        ((690, 0.006, 1), (1180, 0.005, 0.8), (2500, 0.003, 0.3)),
        rng,
        0.5,
    )
    return layers(
        (0, louder(shaped(cry, (0, 0), (0.04, 1), (0.15, 0.6), (0.3, 0)), 0.45)),
        (0.08, louder(cloth(0.42, 14, rng), 1.4)),
        (0.05, louder(whoosh(0.45, along((0, 350), (0.45, 800)), hump(0.45, 0.6), rng, 1), 0.8)),
    )


def person_landed(name):
    """All of a body at once, the floor under it, and the breath it loses."""
    rng = chance(name)
    body = layers(
        (0, thump(0.25, 95, 46, 0.06)), (0, louder(lowpass(burst(0.12, 0.026, rng), 380), 2))
    )
    limbs = layers(
        *(
            (at, louder(lowpass(burst(0.05, 0.009, rng), 800), level))
            for at, level in ((0.09, 1.4), (0.15, 1), (0.27, 0.8))
        )
    )
    air = noise(0.3, rng)
    breath = layers((0, bandpass(air, 620, 3)), (0, louder(bandpass(air, 1450, 4), 0.7)))
    boards = scattered(0.3, 10, lambda x: x, splinter, rng)
    return layers(
        (0, body),
        (0, limbs),
        (0.02, louder(boards, 0.35)),
        (0.16, louder(shaped(breath, (0, 0), (0.06, 1), (0.3, 0)), 0.9)),
    )


CUES = {
    "table-flipped": table_flipped,
    "table-thrown": table_thrown,
    "table-landed": table_landed,
    "chair-thrown": chair_thrown,
    "chair-landed": chair_landed,
    "person-thrown": person_thrown,
    "person-landed": person_landed,
}
