"""What heroes carry, and what they do with it."""

from soundmaking.parts import burst, clink, crack, hump, scattered, SHEET, thump, whoosh
from soundmaking.signals import (
    along,
    bandpass,
    chance,
    dying,
    layers,
    louder,
    lowpass,
    noise,
    plucked,
    power,
    pulses,
    RATE,
    room,
    shaped,
    sine,
    spread_modes,
    struck,
    tone,
)


def hook(name):
    """A rope that runs out faster and faster over its drum, and iron that bites."""
    rng = chance(name)
    turns = pulses(0.5, along((0, 38), (0.45, 165), (0.5, 150)), rng, 0.08)
    rope = struck(0.5, ((760, 0.004, 1), (1650, 0.003, 1), (2900, 0.002, 0.7)), turns)
    air = whoosh(
        0.5, along((0, 600), (0.5, 2600)), along((0, 0), (0.05, 0.3), (0.42, 1), (0.5, 0)), rng, 1.5
    )
    bite = struck(
        0.3,
        ((1130, 0.05, 0.8), (1990, 0.06, 1), (3340, 0.045, 0.8), (5210, 0.03, 0.6)),
        burst(0.004, 0.001, rng),
    )
    return layers(
        (0, louder(rope, 0.5)),
        (0, louder(air, 0.9)),
        (0.48, louder(bite, 0.4)),
        (0.48, louder(thump(0.15, 180, 85, 0.03), 0.7)),
    )


def grapnel(name):
    """A spring lets go, a chain rattles home, and somebody is torn along."""
    rng = chance(name)
    spring = layers(
        (0, thump(0.1, 330, 150, 0.02)), (0, louder(crack(0.05, 1500, 0.008, rng), 1.2))
    )
    chain = layers(
        *(
            (
                0.06 + 0.5 * (1 - power(1 - n / 22, 1.5)),
                louder(clink(rng, 2300, 0.022), 0.35 + 0.5 * rng.random()),
            )
            for n in range(22)
        )
    )
    drag = shaped(lowpass(noise(0.3, rng), 420), (0, 0), (0.2, 1), (0.3, 0))
    return layers(
        (0, spring),
        (0, louder(chain, 0.38)),
        (0.45, louder(drag, 0.7)),
        (0.7, thump(0.24, 120, 60, 0.05)),
        (0.7, louder(crack(0.06, 700, 0.012, rng), 1.2)),
    )


def dust(name):
    """A handful of grit in the face: a puff, and grains that patter."""
    rng = chance(name)
    puff = shaped(
        bandpass(noise(0.22, rng), along((0, 3200), (0.22, 1700)), 0.9),
        (0, 0),
        (0.02, 1),
        (0.09, 0.35),
        (0.22, 0),
    )
    grains = scattered(
        0.5,
        190,
        lambda x: 0.04 + 0.9 * x * x,
        lambda r: louder(crack(0.005, 3500 + 5500 * r.random(), 0.0008, r, 2), 0.3 + r.random()),
        rng,
    )
    return layers((0, louder(puff, 0.8)), (0.02, louder(grains, 0.75)))


def blast(name):
    """Force that gathers, leaps and rolls away."""
    rng = chance(name)
    charge = layers(
        *(
            (0, shaped(tone(0.16, lambda t, f=f: f * (1 + 3 * t)), (0, 0), (0.14, 1), (0.16, 0)))
            for f in (310, 437, 533)
        )
    )

    def arc(t):
        return 140 + 2100 * 0.012 / (0.012 + t * t * 3)

    bolt, phase = [], 0.0
    for n in range(int(0.5 * RATE)):
        phase += arc(n / RATE) / RATE
        bolt.append(sine(phase + 0.6 * sine(1.413 * phase) + 0.25 * (2 * rng.random() - 1)))
    roll = lowpass(noise(0.7, rng), along((0, 5000), (0.2, 700), (0.7, 160)))
    return layers(
        (0, louder(charge, 0.13)),
        (0.15, louder(dying(bolt, 0.11, 0.004), 0.6)),
        (0.15, louder(dying(roll, 0.13, 0.002), 1.3)),
        (0.16, louder(thump(0.35, 140, 56, 0.08), 0.5)),
    )


def bolas(name):
    """Two weights on a cord swing round, faster and faster, and wind themselves about a leg."""
    rng = chance(name)
    swings = layers(
        *(
            (
                start,
                louder(
                    whoosh(
                        long,
                        along((0, 420 + 90 * k), (0.5 * long, 950 + 200 * k), (long, 480)),
                        hump(long),
                        rng,
                        3,
                    ),
                    0.55 + 0.12 * k,
                ),
            )
            for k, (start, long) in enumerate(
                ((0, 0.19), (0.15, 0.16), (0.275, 0.13), (0.375, 0.11), (0.46, 0.1))
            )
        )
    )
    knock = lambda level: louder(
        struck(
            0.09,
            ((830, 0.008, 1), (1480, 0.006, 0.8), (2450, 0.004, 0.5)),
            burst(0.004, 0.001, rng),
        ),
        level,
    )
    winds = layers(
        *(
            (0.56 + at, knock(level))
            for at, level in ((0, 1), (0.075, 0.8), (0.13, 0.65), (0.17, 0.5), (0.2, 0.4))
        )
    )
    return layers((0, louder(swings, 1.9)), (0, louder(winds, 0.5)))


def net(name):
    """It spreads in the air and falls about somebody, cord by cord."""
    rng = chance(name)
    spread = whoosh(0.4, along((0, 500), (0.25, 1900), (0.4, 900)), hump(0.4, 0.6), rng, 0.5)
    cords = scattered(
        0.36,
        34,
        lambda x: x,
        lambda r: louder(
            struck(
                0.05,
                ((190 + 420 * r.random(), 0.01, 1), (900 + 700 * r.random(), 0.004, 0.6)),
                burst(0.008, 0.003, r),
            ),
            0.3 + 0.7 * r.random(),
        ),
        rng,
    )
    pull = shaped(
        bandpass(noise(0.24, rng), 1500, 0.7),
        (0, 0),
        (0.06, 0.7),
        (0.12, 0.3),
        (0.17, 1),
        (0.24, 0),
    )
    return layers((0, louder(spread, 1.1)), (0.3, louder(cords, 0.8)), (0.56, louder(pull, 0.5)))


def smoke_bombs(name):
    """Three capsules burst, and hiss until they are empty."""
    rng = chance(name)
    pop = lambda f: layers((0, thump(0.08, f, 0.5 * f, 0.016)), (0, crack(0.04, 1700, 0.006, rng)))
    hiss = shaped(
        bandpass(noise(0.8, rng), along((0, 8500), (0.2, 6500), (0.8, 4200)), 0.6),
        (0, 0),
        (0.06, 1),
        (0.3, 0.75),
        (0.8, 0),
    )
    spit = [
        sample * (0.75 + 0.25 * sine(31 * n / RATE + 0.8 * sine(7.3 * n / RATE)))
        for n, sample in enumerate(hiss)
    ]
    return layers(
        (0, louder(pop(240), 0.9)),
        (0.09, louder(pop(290), 0.75)),
        (0.15, louder(pop(210), 0.8)),
        (0.03, louder(spit, 1.7)),
    )


def smoke_gone(name):
    """Wind takes it: a gust that swells, brightens and thins out."""
    rng = chance(name)
    gust = whoosh(0.85, along((0, 260), (0.35, 750), (0.85, 2100)), hump(0.85, 0.42), rng, 1.1)
    thin = whoosh(0.6, along((0, 1800), (0.6, 5200)), hump(0.6, 0.5), rng, 2)
    return layers((0, gust), (0.25, louder(thin, 0.4)))


def shield(name):
    """A steel plate is swung up and stands."""
    rng = chance(name)
    swing = whoosh(0.22, along((0, 400), (0.22, 1100)), hump(0.22, 0.75), rng, 1.4)
    plate = struck(0.6, spread_modes(212, SHEET, 0.26, rng), burst(0.008, 0.002, rng))
    shimmer = struck(0.6, spread_modes(1470, SHEET[:5], 0.2, rng), burst(0.02, 0.008, rng))
    return layers(
        (0, louder(swing, 0.8)),
        (0.17, louder(plate, 0.3)),
        (0.17, louder(shimmer, 0.1)),
        (0.17, louder(thump(0.15, 140, 75, 0.03), 0.7)),
    )


def heal(name):
    """A harp over a warm breath."""
    rng = chance(name)
    strings = layers(
        *(
            (start, louder(plucked(0.85 - start, frequency, rng, 0.14, 0.35), level))
            for start, frequency, level in (
                (0, 261.63, 1),
                (0.09, 329.63, 0.9),
                (0.18, 392, 0.9),
                (0.27, 523.25, 0.8),
                (0.36, 659.26, 0.7),
            )
        )
    )
    warmth = shaped(bandpass(noise(0.85, rng), 900, 0.8), (0, 0), (0.3, 1), (0.85, 0))
    return room(layers((0, strings), (0, louder(warmth, 0.09))), 0.98, 0.5, 0.3, 1.0, 4500)


def second_wind(name):
    """A deep breath in, and a heart that beats again."""
    rng = chance(name)
    air = noise(0.5, rng)
    breath = layers(
        (0, bandpass(air, along((0, 480), (0.5, 900)), 2.5)),
        (0, louder(bandpass(air, along((0, 1500), (0.5, 2400)), 3), 0.8)),
    )
    beat = lambda high: layers(
        (0, thump(0.16, high, 48, 0.045)), (0, louder(lowpass(burst(0.05, 0.012, rng), 260), 1.5))
    )
    return layers(
        (0, louder(shaped(breath, (0, 0), (0.3, 0.7), (0.43, 1), (0.5, 0)), 1.6)),
        (0.5, louder(beat(125), 0.8)),
        (0.66, louder(beat(105), 0.6)),
    )


CUES = {
    "hook": hook,
    "grapnel": grapnel,
    "dust": dust,
    "blast": blast,
    "bolas": bolas,
    "net": net,
    "smoke-bombs": smoke_bombs,
    "smoke-gone": smoke_gone,
    "shield": shield,
    "heal": heal,
    "second-wind": second_wind,
}
