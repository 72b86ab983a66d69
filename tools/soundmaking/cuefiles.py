"""The cues and loops as files: who makes them, and how loud they are by kind."""

from soundmaking import ambience as loops
from soundmaking import fightcues, gearcues, guncues, signalcues, throwncues
from soundmaking.levels import at_loudness, loop_loudness, loudest_moment, without_silence
from soundmaking.signals import faded

FIGHT = {**fightcues.CUES, **gearcues.CUES, **guncues.CUES, **throwncues.CUES, **signalcues.CUES}
FIGHTLOUDNESS = -20
MAPLOUDNESS = -24
LOOPLOUDNESS = -26


def cues():
    for makers, wanted in ((FIGHT, FIGHTLOUDNESS), (signalcues.MAPCUES, MAPLOUDNESS)):
        for name, make in makers.items():
            samples = faded(without_silence(make(name)), 0.0005, 0.05)
            yield name, at_loudness(samples, loudest_moment(samples), wanted)


def ambience():
    for name, make in loops.LOOPS.items():
        samples = make(name)
        yield name, at_loudness(samples, loop_loudness(samples), LOOPLOUDNESS)
