"""How loud a sound is to the ear, and making it as loud as wanted.

The weighting is the one broadcasters use (ITU-R BS.1770, whose two filters are given for this
rate): it hears little of what is very low, and a little more of what is high. A cue is as loud as
its loudest 100 milliseconds, a loop as the whole of it, in decibels below full scale.
"""

import array
import math

from soundmaking.signals import RATE, exact, power

WEIGHTING = (
    (
        (1.53512485958697, -2.69169618940638, 1.19839281085285),
        (-1.69065929318241, 0.73248077421585),
    ),
    ((1.0, -2.0, 1.0), (-1.99004745483398, 0.99007225036621)),
)
WINDOW = RATE // 10
CEILING = 0.95  # no sample goes beyond: resampling by pitch must not clip either


def weighted(samples):
    for (b0, b1, b2), (a1, a2) in WEIGHTING:
        result = []
        s1 = s2 = 0.0
        for sample in samples:
            value = b0 * sample + s1
            s1 = b1 * sample - a1 * value + s2
            s2 = b2 * sample - a2 * value
            result.append(value)
        samples = result
    return samples


def decibels(power):
    return exact(10 * math.log10(power))


def loudest_moment(samples):
    energy = [0.0]
    for sample in weighted(samples):
        energy.append(energy[-1] + sample * sample)
    return decibels(
        max(energy[min(n + WINDOW, len(samples))] - energy[n] for n in range(0, len(samples), 48))
        / WINDOW
    )


def loop_loudness(samples):
    heard = weighted(samples[-RATE:] + samples)[RATE:]
    return decibels(math.fsum(sample * sample for sample in heard) / len(heard))


def at_loudness(samples, loudness, wanted):
    """As 16-bit numbers; a sound with too high a peak stays softer than wanted."""
    factor = power(10, (wanted - loudness) / 20)
    factor = min(factor, CEILING / max(abs(sample) for sample in samples))
    return array.array("h", (round(32767 * sample * factor) for sample in samples))


def without_silence(samples, begins=3e-2, ends=1e-3):
    """From the first sample that is heard to the last, as shares of the highest one."""
    top = max(abs(sample) for sample in samples)
    first = next(n for n, sample in enumerate(samples) if abs(sample) > begins * top)
    after = next(n for n, sample in enumerate(reversed(samples)) if abs(sample) > ends * top)
    return samples[first : len(samples) - after]
