"""What tells how things stand, and the soft tones under the map's words."""

from soundmaking.parts import burst, crack, thump
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
    plucked,
    power,
    room,
    shaped,
    struck,
    tone,
)


BRASS = ((1, 1), (2, 0.8), (3, 0.65), (4, 0.42), (5, 0.3), (6, 0.2), (7, 0.12), (8, 0.07))


def brass(seconds, frequency):
    """Bright only while it is blown hard."""
    sound = layers(
        (0, tone(seconds, frequency, BRASS)), (0, tone(seconds, frequency * 1.004, BRASS))
    )
    dull = lowpass(sound, along((0, 500), (0.05, 3000), (0.2, 1500), (seconds, 600)), 0.8)
    return shaped(dull, (0, 0), (0.03, 1), (0.12, 0.7), (seconds - 0.08, 0.5), (seconds, 0))


def drum(rng, high, low, ring):
    return layers(
        (0, thump(0.4, high, low, ring)), (0, louder(lowpass(burst(0.05, 0.01, rng), 900), 0.8))
    )


def target_chosen(name):
    """Fingers snap."""
    rng = chance(name)
    brush = shaped(highpass(noise(0.03, rng), 2500), (0, 0), (0.03, 1))
    snap = layers(
        (0, louder(crack(0.05, 2150, 0.006, rng, 4), 3)),
        (0.001, louder(crack(0.03, 4200, 0.003, rng, 2), 0.8)),
    )
    return room(layers((0, louder(brush, 0.12)), (0.03, snap)), 0.24, 0.5, 0.05, 0.35, 5000)


def heroes_turn(name):
    """Two low strings and a fifth above: over to you."""
    rng = chance(name)
    return room(
        layers(
            (0, plucked(0.7, 146.83, rng, 0.25, 0.3)),
            (0.14, plucked(0.6, 220, rng, 0.25, 0.35)),
            (0, louder(drum(rng, 130, 73.4, 0.06), 0.35)),
            (0.14, louder(drum(rng, 150, 82, 0.05), 0.25)),
        ),
        0.85,
        0.4,
        0.16,
        0.8,
        3000,
    )


def victory(name):
    """Brass and drums, upward, and a cymbal."""
    rng = chance(name)
    notes = (
        (0, 0.2, 293.66),
        (0, 0.2, 369.99),
        (0.17, 0.2, 369.99),
        (0.17, 0.2, 440),
        (0.34, 0.64, 293.66),
        (0.34, 0.64, 440),
        (0.34, 0.64, 587.33),
        (0.34, 0.64, 739.99),
    )
    cymbal = dying(highpass(noise(0.64, rng), 6000), 0.17, 0.002)
    return layers(
        *((start, louder(brass(long, frequency), 0.35)) for start, long, frequency in notes),
        *(
            (start, louder(drum(rng, 190, 110, 0.05), level))
            for start, level in ((0, 0.5), (0.17, 0.5), (0.34, 0.9))
        ),
        (0.34, louder(cymbal, 0.16))
    )


def defeat(name):
    """The same drums, slower and lower, and a chord that sinks."""
    rng = chance(name)
    sinking = along((0, 1), (0.35, 1), (0.9, 0.94))
    strings = layers(
        *(
            (0, lowpass(tone(0.9, lambda t, f=f: f * sinking(t), BRASS), 1200))
            for f in (110, 131.2, 164.5, 196.7)
        )
    )
    return layers(
        (0, louder(shaped(strings, (0, 0), (0.12, 1), (0.5, 0.7), (0.9, 0)), 0.24)),
        *(
            (start, louder(drum(rng, 110, 58, 0.08), level))
            for start, level in ((0, 0.9), (0.29, 0.7), (0.56, 0.5))
        )
    )


def soft(frequency, partials, ring, seconds=0.14):
    sound = layers(
        *(
            (
                0,
                louder(
                    dying(tone(seconds, frequency * ratio), ring / power(ratio, 0.5), 0.006), level
                ),
            )
            for ratio, level in partials
        )
    )
    return sound


def tile_hero(name):
    """A wooden bar, high and clear."""
    rng = chance(name)
    return layers(
        (0, soft(659.26, ((1, 1), (3.93, 0.2)), 0.03)),
        (0, louder(crack(0.01, 3000, 0.001, rng), 0.15)),
    )


def tile_enemy(name):
    """A low, rough one."""
    rng = chance(name)
    return layers(
        (0, soft(174.61, ((1, 1), (1.06, 0.8), (2, 0.5), (3.03, 0.45), (5.1, 0.25)), 0.035)),
        (0, louder(crack(0.02, 700, 0.004, rng), 0.3)),
    )


def tile_both(name):
    """The two, one after the other."""
    return layers(
        (0, louder(tile_hero("tile-hero"), 0.9)), (0.075, louder(tile_enemy("tile-enemy"), 1.1))
    )


def tile_furniture(name):
    """A knuckle on wood."""
    rng = chance(name)
    return struck(
        0.11,
        ((388, 0.012, 1), (702, 0.01, 0.8), (1216, 0.007, 0.7), (1850, 0.004, 0.4)),
        burst(0.003, 0.001, rng),
    )


def tile_smoke(name):
    """A breath of haze."""
    rng = chance(name)
    return shaped(
        bandpass(noise(0.16, rng), along((0, 4200), (0.16, 2600)), 0.8),
        (0, 0),
        (0.05, 1),
        (0.16, 0),
    )


def tile_empty(name):
    """A fingertip."""
    return soft(330, ((1, 1), (2, 0.08)), 0.013, 0.07)


def map_edge(name):
    """A dull bump: no farther."""
    rng = chance(name)
    return layers(
        (0, dying(tone(0.16, along((0, 120), (0.03, 82), (0.16, 74))), 0.035, 0.002)),
        (0, louder(lowpass(burst(0.07, 0.014, rng), 300), 1.6)),
        (0.062, louder(lowpass(burst(0.05, 0.01, rng), 240), 0.6)),
    )


CUES = {
    "target-chosen": target_chosen,
    "heroes-turn": heroes_turn,
    "victory": victory,
    "defeat": defeat,
}
MAPCUES = {
    "tile-hero": tile_hero,
    "tile-enemy": tile_enemy,
    "tile-both": tile_both,
    "tile-furniture": tile_furniture,
    "tile-smoke": tile_smoke,
    "tile-empty": tile_empty,
    "map-edge": map_edge,
}
