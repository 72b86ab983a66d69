"""Feet, fists and bodies."""

from soundmaking.parts import (
    burst,
    cloth,
    crack,
    creak,
    hump,
    punch,
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
    highpass,
    layers,
    louder,
    lowpass,
    noise,
    pressed,
    room,
    shaped,
    spread_modes,
    struck,
    tone,
)


def step(name):
    """A heel, then the sole on grit."""
    rng = chance(name)
    heel = struck(
        0.12, ((95, 0.018, 1.0), (210, 0.012, 0.8), (430, 0.007, 0.6)), burst(0.01, 0.002, rng)
    )
    sole = shaped(bandpass(noise(0.11, rng), 2600, 0.8), (0, 0), (0.02, 1), (0.05, 0.3), (0.11, 0))
    grit = scattered(
        0.1, 26, lambda x: x, lambda r: louder(crack(0.006, 5200, 0.0012, r), 0.8), rng
    )
    return layers(
        (0, heel),
        (0.001, louder(crack(0.03, 1300, 0.004, rng), 0.7)),
        (0.065, louder(sole, 1.3)),
        (0.06, louder(grit, 1)),
    )


def dive(name):
    """A leap with clothes in the wind, a fall on the shoulder, a roll."""
    rng = chance(name)
    leap = whoosh(0.34, along((0, 350), (0.22, 1300), (0.34, 500)), hump(0.34, 0.7), rng, 1.0)
    fall = layers(
        (0, thump(0.2, 120, 58, 0.05)), (0, louder(lowpass(burst(0.1, 0.02, rng), 500), 1.5))
    )
    roll = shaped(
        lowpass(noise(0.3, rng), along((0, 1400), (0.3, 350))),
        (0, 0),
        (0.05, 0.8),
        (0.12, 0.25),
        (0.2, 0.6),
        (0.3, 0),
    )
    return layers(
        (0, louder(leap, 1.7)),
        (0.05, louder(cloth(0.24, 19, rng), 0.5)),
        (0.3, louder(fall, 0.8)),
        (0.36, louder(roll, 0.5)),
    )


def kick(name):
    """A leg through the air, and a boot that sinks in."""
    rng = chance(name)
    leg = whoosh(0.16, along((0, 300), (0.16, 1500)), hump(0.16, 0.8), rng, 1.5)
    boot = layers(
        (0, louder(thump(0.34, 120, 52, 0.07), 0.6)),
        (0, louder(struck(0.1, ((310, 0.02, 1), (520, 0.014, 0.8)), burst(0.01, 0.004, rng)), 0.8)),
        (0.002, louder(crack(0.05, 950, 0.011, rng), 5)),
    )
    return layers(
        (0, louder(leg, 0.9)), (0.13, pressed(boot, 1.2)), (0.2, louder(cloth(0.14, 24, rng), 0.3))
    )


def combo(name):
    """Three blows in one breath, the last with the whole weight."""
    return layers(
        (0, louder(punch(name + " 1", 0.75, 2600), 0.6)),
        (0.115, louder(punch(name + " 2", 0.9, 1900), 0.75)),
        (0.27, punch(name + " 3", 1.25, 1400, 0.4)),
    )


def headbutt(name):
    """Bone on bone: a hollow knock, and a second one as they part."""
    rng = chance(name)
    bone = ((390, 0.022, 1), (710, 0.016, 0.9), (1180, 0.009, 0.7), (1930, 0.005, 0.4))
    knock = struck(0.2, bone, burst(0.006, 0.0015, rng))
    second = struck(0.15, [(f * 1.12, r, l) for f, r, l in bone], burst(0.004, 0.001, rng))
    return room(
        layers(
            (0, knock),
            (0.002, louder(thump(0.2, 130, 70, 0.04), 0.7)),
            (0.085, louder(second, 0.35)),
        ),
        0.36,
        0.35,
        0.06,
        0.3,
    )


def pin(name):
    """A body against a wall, and the wall that gives a little."""
    rng = chance(name)
    wall = struck(
        0.3,
        ((88, 0.06, 1.2), (143, 0.05, 1), (236, 0.03, 0.8), (370, 0.02, 0.4)),
        burst(0.02, 0.006, rng),
    )
    rattle = scattered(0.2, 9, lambda x: x * x, splinter, rng)
    press = creak(
        0.42,
        along((0, 34), (0.2, 62), (0.42, 44)),
        ((480, 0.01, 1), (905, 0.007, 0.8), (1490, 0.005, 0.5)),
        rng,
    )
    return layers(
        (0, louder(wall, 0.7)),
        (0, louder(lowpass(burst(0.08, 0.02, rng), 900), 1.6)),
        (0.03, louder(rattle, 0.5)),
        (0.2, louder(shaped(press, (0, 0), (0.08, 1), (0.3, 0.8), (0.42, 0)), 1.5)),
    )


def hit_hero(name):
    """The heaviest of the blows, near, with the breath knocked out."""
    rng = chance(name)
    groan = throat(
        0.28,
        along((0, 135), (0.08, 150), (0.28, 88)),
        ((540, 0.006, 1), (1010, 0.005, 0.6), (2400, 0.003, 0.25)),
        rng,
        0.6,
    )
    return layers(
        (0, pressed(punch(name, 1.5, 1100, 0.45), 1.5)),
        (0, louder(crack(0.03, 3200, 0.004, rng), 1.4)),
        (0.07, louder(shaped(groan, (0, 0), (0.03, 1), (0.12, 0.7), (0.28, 0)), 0.3)),
    )


def hit_enemy(name):
    """A clean smack, brighter and farther off."""
    rng = chance(name)
    smack = layers(
        (0, louder(crack(0.05, 2700, 0.009, rng, 0.7), 1.6)),
        (0.001, louder(crack(0.09, 1250, 0.014, rng), 1.4)),
        (0.002, louder(thump(0.16, 240, 115, 0.03), 0.7)),
    )
    return room(smack, 0.3, 0.45, 0.07, 0.5, 5000)


def blow_blocked(name):
    """A swing, and a sleeve that catches it."""
    rng = chance(name)
    swing = whoosh(0.2, along((0, 700), (0.12, 2300), (0.2, 1500)), hump(0.2, 0.6), rng, 2.0)
    sleeve = lowpass(burst(0.1, 0.016, rng, 0.002), 620, 0.8)
    return layers(
        (0, louder(swing, 1.3)),
        (0.14, louder(sleeve, 1.3)),
        (0.15, louder(cloth(0.12, 30, rng), 0.5)),
    )


def hero_down(name):
    """Knees, a body, and a low bell that says whose."""
    rng = chance(name)
    body = layers(
        (0, thump(0.2, 110, 55, 0.05)), (0, louder(lowpass(burst(0.1, 0.02, rng), 450), 1.6))
    )
    bell = struck(
        0.72,
        ((98, 0.26, 1), (196.5, 0.22, 0.6), (233, 0.24, 0.8), (294, 0.16, 0.4), (415, 0.12, 0.25)),
        burst(0.01, 0.004, rng),
    )
    return layers(
        (0, louder(body, 0.9)),
        (0.16, louder(body, 1.4)),
        (0.24, louder(lowpass(bell, along((0, 1400), (0.7, 400))), 0.75)),
    )


def enemy_down(name):
    """A body that drops like a sack, and an arm after it."""
    rng = chance(name)
    drop = layers(
        (0, thump(0.16, 160, 80, 0.03)), (0, louder(lowpass(burst(0.12, 0.03, rng), 800), 1.6))
    )
    arm = lowpass(burst(0.05, 0.01, rng), 1100)
    boards = struck(0.2, ((172, 0.03, 1), (301, 0.02, 0.6)), burst(0.01, 0.003, rng))
    return layers(
        (0, louder(cloth(0.17, 20, rng), 0.7)),
        (0.14, drop),
        (0.14, louder(boards, 0.4)),
        (0.33, louder(arm, 1.6)),
        (0.43, louder(arm, 1)),
        (
            0.17,
            louder(
                shaped(lowpass(noise(0.4, rng), 1800), (0, 0), (0.1, 0.6), (0.2, 1), (0.4, 0)), 0.25
            ),
        ),
    )


def dazed(name):
    """A dull blow, then ears that ring and a room that sways."""
    rng = chance(name)
    bonk = struck(
        0.2, ((165, 0.04, 1), (262, 0.03, 0.7), (590, 0.01, 0.4)), burst(0.008, 0.002, rng)
    )
    sway = along((0, 1), (0.2, 1.03), (0.4, 0.97), (0.6, 1.03), (0.8, 0.97))
    ears = layers(
        *(
            (0, louder(tone(0.8, lambda t, f=f: f * sway(t + 0.07 * k)), level))
            for k, (f, level) in enumerate(((1870, 1), (1893, 0.9), (2790, 0.5), (2824, 0.4)))
        )
    )
    ears = shaped(
        ears, (0, 0), (0.15, 1), (0.3, 0.4), (0.45, 0.8), (0.6, 0.3), (0.7, 0.5), (0.8, 0)
    )
    return layers(
        (0, bonk),
        (0.04, louder(ears, 0.24)),
        (0.05, louder(shaped(lowpass(noise(0.7, rng), 500), (0, 0), (0.2, 1), (0.7, 0)), 0.25)),
    )


def free_again(name):
    """Shaken off: three flaps, the last let go."""
    rng = chance(name)
    flap = [
        shaped(
            highpass(noise(0.09, rng), 1500 + 500 * n), (0, 0), (0.015, 1), (0.04, 0.4), (0.09, 0)
        )
        for n in range(3)
    ]
    release = whoosh(0.22, along((0, 900), (0.22, 4500)), hump(0.22, 0.35), rng, 1.4)
    return layers(
        (0, louder(flap[0], 0.5)),
        (0.09, louder(flap[1], 0.65)),
        (0.17, flap[2]),
        (0.17, louder(release, 1.3)),
        (0.18, louder(thump(0.1, 260, 190, 0.025), 0.4)),
    )


def newcomer(name):
    """A latch, a hinge, a door that falls to."""
    rng = chance(name)
    latch = struck(
        0.08, ((1340, 0.008, 1), (2210, 0.006, 0.8), (3470, 0.004, 0.6)), burst(0.003, 0.001, rng)
    )
    hinge = creak(
        0.4,
        along((0, 95), (0.25, 150), (0.4, 120)),
        ((640, 0.012, 1), (1120, 0.008, 0.9), (1760, 0.006, 0.6), (2900, 0.004, 0.3)),
        rng,
        0.12,
    )
    door = struck(0.35, spread_modes(74, WOOD, 0.07, rng), burst(0.03, 0.008, rng))
    return room(
        layers(
            (0, louder(latch, 0.9)),
            (0.05, louder(latch, 0.6)),
            (0.08, louder(shaped(hinge, (0, 0), (0.15, 0.8), (0.3, 1), (0.4, 0)), 0.9)),
            (0.5, louder(door, 0.55)),
            (0.505, louder(lowpass(burst(0.1, 0.02, rng), 700), 0.9)),
        ),
        0.95,
        0.5,
        0.16,
        0.9,
        2500,
    )


CUES = {
    "step": step,
    "dive": dive,
    "kick": kick,
    "combo": combo,
    "headbutt": headbutt,
    "pin": pin,
    "hit-hero": hit_hero,
    "hit-enemy": hit_enemy,
    "blow-blocked": blow_blocked,
    "hero-down": hero_down,
    "enemy-down": enemy_down,
    "dazed": dazed,
    "free-again": free_again,
    "newcomer": newcomer,
}
