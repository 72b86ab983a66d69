"""The loops under missions and menus: ten seconds that go round without a seam.

What is added runs over the end on to the start, filters run in on the end of what they filter, and
whatever swings does so a whole number of times.
"""

from soundmaking.parts import burst, creak, thump
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
    onto_loop,
    power,
    room,
    round_and_round,
    shaped,
    sine,
    struck,
    tone,
)


SECONDS = 10


def swaying(rng, *rates):
    """A wandering between 0 and 1, of so many swings a loop each."""
    swings = [(rate, rng.random()) for rate in rates]

    def value(t):
        total = 0.0
        for rate, start in swings:
            total += sine(rate * t / SECONDS + start)
        return 0.5 + 0.5 * total / len(swings)

    return value


def swayed(samples, level):
    return shaped(samples, *((t / 50, level(t / 50)) for t in range(50 * SECONDS + 1)))


def bed(rng, low, high):
    """Noise between two frequencies."""
    return round_and_round(noise(SECONDS, rng), lambda s: lowpass(highpass(s, low), high))


def drops(loop, rng, count, kinds, lowest, highest, level):
    """Rain, drop by drop: some dozens of drops are made, and fall again and again."""
    made = []
    for _ in range(kinds):
        frequency = lowest * power(highest / lowest, rng.random())
        drop = struck(
            0.02,
            ((frequency, 0.0015 + 0.9 / frequency, 1), (2.3 * frequency, 0.001, 0.5)),
            burst(0.002, 0.0005, rng),
        )
        made.append(drop)
    for _ in range(count):
        onto_loop(
            loop,
            SECONDS * rng.random(),
            made[int(kinds * rng.random())],
            level * (0.1 + 0.9 * power(rng.random(), 4)),
        )


def tattoo_parlor(name):
    """Rain in the street, and over the door a neon sign that buzzes and flickers."""
    rng = chance(name)
    loop = swayed(
        louder(bed(rng, 900, 6500), 0.16), lambda t, s=swaying(rng, 2, 5, 9): 0.8 + 0.4 * s(t)
    )
    drops(loop, rng, 5200, 60, 1500, 7000, 0.5)
    drops(loop, rng, 160, 12, 500, 1300, 0.8)  # on the sill
    hum = tone(
        SECONDS,
        120,
        ((1, 1), (2, 0.5), (3, 0.6), (5, 0.45), (7, 0.35), (11, 0.3), (17, 0.22), (23, 0.15)),
    )
    gas = [1.5 * value * max(0.0, cycle) for value, cycle in zip(noise(SECONDS, rng), hum)]
    buzz = round_and_round([a + b for a, b in zip(hum, gas)], lambda s: bandpass(s, 2400, 0.5))
    flicker = [(0, 1)]
    for start in (2.1, 2.25, 6.4, 8.05, 8.2, 8.32):
        flicker += [
            (start, 1),
            (start + 0.01, 0.15),
            (start + 0.06, 0.2),
            (start + 0.07, 1.25),
            (start + 0.1, 1),
        ]
        onto_loop(
            loop,
            start + 0.06,
            struck(0.05, ((2900, 0.004, 1), (5100, 0.003, 0.7)), burst(0.002, 0.0005, rng)),
            0.25,
        )
    onto_loop(loop, 0, shaped(buzz, *flicker, (SECONDS, 1)), 0.12)
    return loop


def pool_hall(name):
    """A low room full of smoke: a fan, voices behind it, and balls that meet."""
    rng = chance(name)
    loop = louder(bed(rng, 60, 260), 0.5)
    onto_loop(loop, 0, swayed(bed(rng, 200, 900), lambda t: 0.6 + 0.4 * sine(2.5 * t)), 0.09)
    for formant, rates in ((430, (13, 21, 34)), (620, (11, 26, 39)), (1100, (17, 23, 41))):
        voices = round_and_round(noise(SECONDS, rng), lambda s, f=formant: bandpass(s, f, 5))
        onto_loop(
            loop,
            0,
            swayed(voices, lambda t, s=swaying(rng, *rates): max(0.0, 1.8 * s(t) - 0.6)),
            0.3,
        )
    for start, level in (
        (0.8, 1),
        (1.35, 0.5),
        (3.9, 0.7),
        (5.6, 1),
        (5.72, 0.6),
        (5.95, 0.4),
        (8.3, 0.6),
    ):
        ball = struck(
            0.05,
            (
                (2350 * (0.97 + 0.06 * rng.random()), 0.004, 1),
                (4700, 0.002, 0.6),
                (1180, 0.003, 0.4),
            ),
            burst(0.001, 0.0004, rng),
        )
        onto_loop(loop, start, room(ball, 0.9, 0.7, 0.16, 1.3, 2600), 0.13 * level)
    for start in (1.9, 6.7):
        pocket = layers(
            *(
                (at, louder(thump(0.08, 260, 150, 0.015), level))
                for at, level in ((0, 1), (0.07, 0.5), (0.12, 0.3))
            )
        )
        onto_loop(loop, start, room(pocket, 0.7, 0.9, 0.2, 1.3, 1500), 0.2)
    return loop


def dock(name):
    """Wind off the harbour, water against the piles, a rope, and far away a buoy's bell."""
    rng = chance(name)
    gusts = swaying(rng, 1, 3, 4)
    wind = noise(SECONDS, rng)
    loop = swayed(
        round_and_round(wind, lambda s: bandpass(s, lambda t: 240 + 420 * gusts(t - 2), 1.1)),
        lambda t: 0.5 + 0.4 * gusts(t),
    )
    onto_loop(
        loop,
        0,
        swayed(
            round_and_round(wind, lambda s: bandpass(s, lambda t: 800 + 900 * gusts(t - 2), 4)),
            gusts,
        ),
        0.3,
    )
    for start in (0.4, 1.7, 2.9, 4.5, 5.6, 7.1, 8.2, 9.2):
        lap = shaped(
            lowpass(noise(0.7, rng), along((0, 350), (0.25, 950), (0.7, 300))),
            (0, 0),
            (0.2, 1),
            (0.7, 0),
        )
        onto_loop(loop, start + 0.3 * rng.random(), lap, 0.6 + 0.5 * rng.random())
        for _ in range(5):
            pitch = 380 + 500 * rng.random()
            bubble = dying(tone(0.06, lambda t, p=pitch: p * (1 + 5 * t)), 0.015, 0.004)
            onto_loop(loop, start + 0.2 + 0.5 * rng.random(), bubble, 0.05 + 0.08 * rng.random())
    for start in (3.4, 8.7):
        rope = creak(
            0.6,
            along((0, 28), (0.3, 46), (0.6, 30)),
            ((330, 0.01, 1), (690, 0.007, 0.7), (1250, 0.004, 0.4)),
            rng,
        )
        onto_loop(loop, start, shaped(rope, (0, 0), (0.25, 1), (0.6, 0)), 0.16)
    for start, level in ((2.2, 1), (6.6, 0.6)):
        bell = struck(
            2.6,
            ((523, 0.7, 1), (629, 0.5, 0.5), (1046, 0.4, 0.5), (1571, 0.2, 0.3)),
            burst(0.01, 0.003, rng),
        )
        onto_loop(loop, start, lowpass(bell, 900), 0.035 * level)
    return loop


def menus_and_hideout(name):
    """Rain on a roof, from under it: dull, even, with a gutter that drips."""
    rng = chance(name)
    loop = swayed(
        louder(bed(rng, 120, 750), 0.5), lambda t, s=swaying(rng, 1, 2, 3): 0.75 + 0.5 * s(t)
    )
    drops(loop, rng, 2600, 40, 350, 1500, 0.3)
    loop = round_and_round(loop, lambda s: lowpass(s, 1500, 0.6))
    for start in (0.7, 2.0, 3.15, 4.6, 5.7, 7.3, 8.1, 9.4):
        pitch = 760 + 260 * rng.random()
        drip = dying(tone(0.05, lambda t, p=pitch: p * (1 + 7 * t)), 0.01, 0.002)
        onto_loop(
            loop,
            start + 0.3 * rng.random(),
            room(drip, 0.4, 0.8, 0.12, 0.8, 1800),
            0.09 + 0.08 * rng.random(),
        )
    return loop


LOOPS = {
    "tattoo-parlor": tattoo_parlor,
    "pool-hall": pool_hall,
    "dock": dock,
    "menus-and-hideout": menus_and_hideout,
}
