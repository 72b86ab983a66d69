"""What the cues and loops are made of: noise, tones, struck things, filters, envelopes, places.

A sound is a list of numbers, RATE of them a second. Everything is plain arithmetic on numbers of
the same size everywhere, and all chance comes from seeded generators, so that each machine makes
the same bytes. What the machine's mathematics library works out (sines, powers) may differ in its
last digit, so it is rounded by exact() before it is used.
"""

import bisect
import functools
import math
import random

RATE = 48000
CONTROL = 32  # samples from one change of a moving filter to the next
WAVESTEPS = 4096


def exact(value):
    return round(value, 10)


def power(base, exponent):
    return exact(base**exponent)


WAVE = [exact(math.sin(2 * math.pi * n / WAVESTEPS)) for n in range(WAVESTEPS + 1)]


def samples_in(seconds):
    return round(seconds * RATE)


def chance(name):
    """A generator of its own for each sound: changing one leaves the others as they are."""
    return random.Random(name)


def at(value, t):
    """A number, or a function of the time in seconds."""
    return value(t) if callable(value) else value


def along(*points):
    """A function of time through (seconds, value) points, straight from each to the next."""
    times = [time for time, _ in points]

    def value(t):
        place = bisect.bisect_right(times, t)
        if place == 0 or place == len(points):
            return points[min(place, len(points) - 1)][1]
        (start, low), (end, high) = points[place - 1], points[place]
        return low + (high - low) * (t - start) / (end - start)

    return value


# Sources


def noise(seconds, rng):
    draw = rng.random
    return [2 * draw() - 1 for _ in range(samples_in(seconds))]


def sine(phase):
    """Of a phase in turns."""
    place = (phase - math.floor(phase)) * WAVESTEPS
    step = int(place)
    low = WAVE[step]
    return low + (WAVE[step + 1] - low) * (place - step)


def tone(seconds, frequency, partials=((1, 1.0),)):
    """Sines at multiples of a frequency that may move; it starts at zero."""
    result, phase = [], 0.0
    for n in range(samples_in(seconds)):
        result.append(added(level * sine(multiple * phase) for multiple, level in partials))
        phase += at(frequency, n / RATE) / RATE
    return result


def added(values):
    """In order: the built-in sum() rounds differently from one version of Python to the next."""
    total = 0.0
    for value in values:
        total += value
    return total


def pulses(seconds, frequency, rng, unsteady=0.0):
    """Single samples at a frequency that may move: what sticks and slips, or a throat."""
    result = [0.0] * samples_in(seconds)
    place = 0.0
    while place < len(result):
        result[int(place)] = 1.0
        wander = 1 + unsteady * (2 * rng.random() - 1)
        place += max(RATE / at(frequency, place / RATE) * wander, 1.0)
    return result


def plucked(seconds, frequency, rng, damping=0.5, brightness=0.5):
    """A string: a burst of noise that goes round, a little duller each time."""
    length = round(RATE / frequency)
    string = lowpass(noise(length / RATE, rng), 1000 + 9000 * brightness)
    mean = math.fsum(string) / length
    string = [value - mean for value in string]
    kept = power(0.5, 1 / (frequency * damping))
    result = []
    for n in range(samples_in(seconds)):
        place = n % length
        result.append(string[place])
        string[place] = kept * 0.5 * (string[place] + string[(n + 1) % length])
    return result


# Filters


@functools.lru_cache(maxsize=4096)
def coefficients(frequency, q):
    g = exact(math.tan(math.pi * min(frequency, 0.45 * RATE) / RATE))
    k = 1 / q
    a = 1 / (1 + g * (g + k))
    return g, k, a


def filtered(samples, frequency, q, outputs):
    """A two-pole filter; `outputs` are the shares of its low, middle and high part."""
    low, band, high = outputs
    first = second = 0.0
    result = []
    for begin in range(0, len(samples), CONTROL):
        g, k, a = coefficients(round(at(frequency, begin / RATE), 3), q)
        for sample in samples[begin : begin + CONTROL]:
            v3 = sample - second
            v1 = a * (first + g * v3)
            v2 = second + g * v1
            first = 2 * v1 - first
            second = 2 * v2 - second
            result.append(low * v2 + band * k * v1 + high * (sample - k * v1 - v2))
    return result


def lowpass(samples, frequency, q=0.7):
    return filtered(samples, frequency, q, (1, 0, 0))


def bandpass(samples, frequency, q=1.0):
    return filtered(samples, frequency, q, (0, 1, 0))


def highpass(samples, frequency, q=0.7):
    return filtered(samples, frequency, q, (0, 0, 1))


def round_and_round(samples, work):
    """`work` on a loop: what it does at the start follows from what stands at the end."""
    run_in = min(len(samples), samples_in(2))
    return work(samples[-run_in:] + samples)[run_in:]


def resonance(samples, frequency, ring):
    """One way in which a thing swings: it falls to a third in `ring` seconds."""
    fall = exact(math.exp(-1 / (ring * RATE)))
    turn = 2 * fall * exact(math.cos(2 * math.pi * frequency / RATE))
    square = fall * fall
    scale = exact(math.sin(2 * math.pi * frequency / RATE))
    last = before = 0.0
    result = []
    for sample in samples:
        value = sample * scale + turn * last - square * before
        before = last
        last = value
        result.append(value)
    return result


def struck(seconds, modes, blow=None):
    """A thing of (frequency, ring in seconds, level) modes, hit by `blow`, at best a short noise."""
    blow = list(blow or [1.0])[: samples_in(seconds)]
    blow += [0.0] * (samples_in(seconds) - len(blow))
    return layers(
        *(
            (0, [level * value for value in resonance(blow, frequency, ring)])
            for frequency, ring, level in modes
        )
    )


def spread_modes(lowest, ratios, ring, rng, unsteady=0.03):
    """Modes at about these ratios, the higher the shorter and softer."""
    return [
        (
            lowest * ratio * (1 + unsteady * (2 * rng.random() - 1)),
            ring / power(ratio, 0.7),
            1 / power(ratio, 0.5),
        )
        for ratio in ratios
    ]


# Shapes


def shaped(samples, *points):
    """Under an envelope of (seconds, level) points."""
    envelope = along(*points)
    result = []
    for begin in range(0, len(samples), CONTROL):
        level = envelope(begin / RATE)
        slope = (envelope((begin + CONTROL) / RATE) - level) / CONTROL
        for n, sample in enumerate(samples[begin : begin + CONTROL]):
            result.append(sample * (level + slope * n))
    return result


def dying(samples, ring, attack=0.0):
    """Falls to a third every `ring` seconds, after a straight attack."""
    fall = exact(math.exp(-1 / (ring * RATE)))
    rising = samples_in(attack)
    level = 1.0
    result = []
    for n, sample in enumerate(samples):
        result.append(sample * level * (n / rising if n < rising else 1.0))
        if n >= rising:
            level *= fall
    return result


def louder(samples, factor):
    return [sample * factor for sample in samples]


def pressed(samples, drive):
    """Rounds the peaks off, as anything does that is hit too hard; 1 stays about 1."""
    top = drive / (1 + drive)
    return [drive * sample / (1 + abs(drive * sample)) / top for sample in samples]


def faded(samples, fade_in=0.0005, fade_out=0.02):
    """Raised-cosine ends: nothing clicks."""
    samples = list(samples)
    for seconds, index in ((fade_in, lambda n: n), (fade_out, lambda n: -1 - n)):
        length = min(samples_in(seconds), len(samples))
        for n in range(length):
            samples[index(n)] *= 0.5 - 0.5 * sine(0.25 + 0.5 * n / length)
    return samples


# Putting together


def layers(*parts):
    """Adds (start in seconds, samples) pairs."""
    total = [0.0] * max(samples_in(start) + len(samples) for start, samples in parts)
    for start, samples in parts:
        begin = samples_in(start)
        end = begin + len(samples)
        total[begin:end] = [a + b for a, b in zip(total[begin:end], samples)]
    return total


def onto_loop(loop, start, samples, level=1.0):
    """Adds samples to a loop in place; what goes beyond its end goes on at its start."""
    place = samples_in(start) % len(loop)
    for sample in samples:
        loop[place] += level * sample
        place += 1
        if place == len(loop):
            place = 0


def room(samples, seconds, wet=0.3, ring=0.25, size=1.0, dull=3500):
    """Adds the walls: a few first reflections, then their dying mixture."""
    total = samples_in(seconds)
    dry = (list(samples) + [0.0] * total)[:total]
    tail = [0.0] * total
    for milliseconds in (29.7, 37.1, 41.1, 43.7):
        delay = samples_in(size * milliseconds / 1000)
        kept = exact(math.exp(-delay / (ring * RATE)))
        line = [0.0] * delay
        for n in range(total):
            echo = line[n % delay]
            tail[n] += echo
            line[n % delay] = dry[n] + kept * echo
    for milliseconds in (5.0, 1.7):
        tail = diffused(tail, samples_in(size * milliseconds / 1000))
    tail = lowpass(tail, dull, 0.6)
    return [a + 0.25 * wet * b for a, b in zip(dry, tail)]


def diffused(samples, delay, share=0.6):
    line = [0.0] * delay
    result = []
    for n, sample in enumerate(samples):
        echo = line[n % delay]
        value = sample + share * echo
        line[n % delay] = value
        result.append(echo - share * value)
    return result
