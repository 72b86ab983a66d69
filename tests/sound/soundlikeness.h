// How loud a sound is to the ear, and how far two sounds are from each other.
#pragma once

#include <vector>

namespace duskmarch {

using Samples = std::vector<float>;

// Weighted as broadcasters do it (ITU-R BS.1770).
Samples weighted(const Samples& samples);
// In decibels below full scale, of weighted sound: the loudest 100 milliseconds.
double loudestmoment(const Samples& samples);

// The levels of 18 bands from 60 to 15000 Hz, 47 times a second, in decibels below the loudest.
using Picture = std::vector<std::vector<double>>;
Picture picture(const Samples& sound);
// The mean difference, in decibels, wherever one of the two is heard; at the best of three
// alignments a frame apart.
double distance(const Picture& one, const Picture& other);

}  // namespace duskmarch
