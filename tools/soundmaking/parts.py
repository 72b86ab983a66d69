"""Parts that several cues share: thumps, cracks, whooshes, scrapes, cloth, a throat."""

from soundmaking.signals import (
    bandpass,
    chance,
    dying,
    highpass,
    layers,
    louder,
    lowpass,
    noise,
    power,
    pulses,
    RATE,
    sine,
    struck,
    tone,
)


WOOD = (1, 1.58, 2.24, 2.92, 3.76, 4.9)
SHEET = (1, 1.39, 1.87, 2.41, 3.13, 3.77, 4.6, 5.9)
BAR = (1, 2.76, 5.4, 8.93)


def thump(seconds, high, low, ring, fall=0.03):
    """The body of a blow: a low tone that drops at once."""
    return dying(tone(seconds, lambda t: low + (high - low) * fall / (fall + 4 * t)), ring, 0.001)


def burst(seconds, ring, rng, attack=0.0):
    return dying(noise(seconds, rng), ring, attack)


def crack(seconds, frequency, ring, rng, q=0.8):
    """The edge of a blow."""
    return bandpass(burst(seconds, ring, rng), frequency, q)


def whoosh(seconds, frequency, level, rng, q=1.2):
    """Air: both the pitch of the noise and its level are functions of time."""
    moved = bandpass(noise(seconds, rng), frequency, q)
    return [sample * level(n / RATE) for n, sample in enumerate(moved)]


def hump(seconds, top=0.5):
    """Rises until `top` (a share of the time) and falls again, softly at both ends."""

    def level(t):
        share = t / seconds
        share = 0.5 * share / top if share < top else 0.5 + 0.5 * (share - top) / (1 - top)
        return 0.5 - 0.5 * sine(0.25 + share)

    return level


def creak(seconds, frequency, modes, rng, unsteady=0.25):
    """Sticks and slips: wood that bends, a leg that is dragged."""
    slips = pulses(seconds, frequency, rng, unsteady)
    slips = [value * (0.4 + 0.6 * rng.random()) for value in slips]
    return struck(seconds, modes, slips)


def scattered(seconds, count, when, grain, rng):
    """`count` grains; `when` bends even chance into where they lie, 0 to 1."""
    return layers(
        (seconds, [0.0]), *((seconds * when(rng.random()), grain(rng)) for _ in range(count))
    )


def splinter(rng):
    frequency = 500 * power(8, rng.random())
    ring = 0.004 + 0.02 * rng.random() * 500 / frequency
    level = 0.2 + 0.8 * power(rng.random(), 2)
    return louder(
        struck(
            0.06,
            ((frequency, ring, 1), (frequency * 1.7, ring * 0.6, 0.6)),
            burst(0.003, 0.001, rng),
        ),
        level,
    )


def clink(rng, low=1800, ring=0.06):
    frequency = low * (1 + rng.random())
    modes = [
        (frequency * ratio, ring / power(ratio, 0.6), 1 / power(ratio, 0.4))
        for ratio in (1, 1.53, 2.31, 3.17)
    ]
    return struck(ring * 4, modes, burst(0.002, 0.0006, rng))


def cloth(seconds, rate, rng):
    """Something loose that flaps, `rate` times a second."""
    flutter = noise(seconds, rng)
    moved = bandpass(flutter, 900, 0.6)
    return [
        sample * (0.25 + 0.75 * max(0.0, sine(n * rate / RATE))) for n, sample in enumerate(moved)
    ]


def throat(seconds, pitch, formants, rng, breath=0.3):
    """A voice without a word: pulses and breath through the mouth's (frequency, ring, level)."""
    source = pulses(seconds, pitch, rng, 0.04)
    source = lowpass([3 * value for value in source], 900, 0.6)
    air = louder(highpass(noise(seconds, rng), 700), 0.05 * breath)
    return struck(seconds, formants, [a + b for a, b in zip(source, air)])


def punch(name, weight, edge, seconds=0.3):
    """A body as heavy as `weight`, and a crack of flesh at `edge`."""
    rng = chance(name)
    body = thump(seconds, 150 / weight + 80, 55 / weight + 25, 0.05 * weight)
    flesh = lowpass(burst(0.12, 0.018, rng), 700)
    slap = crack(0.06, edge, 0.007, rng)
    return layers((0, louder(slap, 4)), (0.003, louder(flesh, 2.4)), (0.004, louder(body, 0.6)))
