// SPDX-License-Identifier: GPL-3.0-or-later
// Synthesises the ten sounds of the game as small WAV files (22050 Hz, mono,
// 16 bit). The files are committed under data/sounds; run this again only to
// change them:  tavi-make-sounds data/sounds
#include <cmath>
#include <cstdint>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr int kRate = 22050;
constexpr double kPi = 3.14159265358979323846;

using Samples = std::vector<double>;

// A small deterministic noise source, so that every run writes the same bytes.
struct Noise {
    std::uint32_t state = 12345;
    double Next() {
        state = state * 1664525u + 1013904223u;
        return double(state >> 8) / double(1u << 24) * 2.0 - 1.0;
    }
};

Samples Silence(double seconds) { return Samples(std::size_t(seconds * kRate), 0.0); }

// A tone whose frequency and loudness follow the given curves over its length.
Samples Tone(double seconds, const std::function<double(double)>& frequency,
             const std::function<double(double)>& envelope, bool square = false) {
    Samples s(std::size_t(seconds * kRate));
    double phase = 0;
    for (std::size_t i = 0; i < s.size(); ++i) {
        const double t = double(i) / double(s.size());
        phase += 2 * kPi * frequency(t) / kRate;
        const double wave = square ? (std::sin(phase) >= 0 ? 0.6 : -0.6) : std::sin(phase);
        s[i] = wave * envelope(t);
    }
    return s;
}

double Decay(double t, double speed) { return std::exp(-speed * t); }
double Pluck(double t) { return std::min(1.0, t * 40) * Decay(t, 5); }

void Append(Samples& to, const Samples& more) { to.insert(to.end(), more.begin(), more.end()); }

void Mix(Samples& into, const Samples& more, double at) {
    const std::size_t start = std::size_t(at * kRate);
    if (into.size() < start + more.size()) into.resize(start + more.size(), 0.0);
    for (std::size_t i = 0; i < more.size(); ++i)
        into[start + i] += more[i];
}

Samples Applause() {
    Noise noise;
    Samples s(std::size_t(1.4 * kRate));
    // Many short claps: bursts of noise with a fast decay, ever more sparse.
    for (int clap = 0; clap < 90; ++clap) {
        const double at = 1.2 * std::pow(noise.Next() * 0.5 + 0.5, 1.3);
        const std::size_t start = std::size_t(at * kRate);
        const double gain = 0.25 * (1.0 - at / 1.4);
        for (std::size_t i = 0; i < 600 && start + i < s.size(); ++i)
            s[start + i] += noise.Next() * gain * Decay(i / 600.0, 6);
    }
    return s;
}

Samples Blaster() {
    Noise noise;
    Samples s = Tone(
        0.45, [](double t) { return 1400 * std::pow(0.12, t); },
        [](double t) { return 0.7 * Decay(t, 3); }, true);
    for (std::size_t i = 0; i < s.size(); ++i)
        s[i] += 0.25 * noise.Next() * Decay(double(i) / s.size(), 8);
    return s;
}

Samples CashRegister() {
    Noise noise;
    Samples s;
    for (std::size_t i = 0; i < 700; ++i)
        s.push_back(noise.Next() * 0.5 * Decay(i / 700.0, 5));
    Mix(s,
        Tone(
            0.5, [](double) { return 2093.0; }, [](double t) { return 0.45 * Pluck(t); }),
        0.05);
    Mix(s,
        Tone(
            0.5, [](double) { return 2637.0; }, [](double t) { return 0.35 * Pluck(t); }),
        0.08);
    return s;
}

Samples Giggle() {
    Samples s;
    for (int i = 0; i < 6; ++i) {
        const double base = 700 + 60 * i;
        Append(s, Tone(
                      0.07, [=](double t) { return base + 500 * t; },
                      [](double t) { return 0.5 * std::sin(kPi * t); }));
        Append(s, Silence(0.03));
    }
    return s;
}

Samples Boink() {
    return Tone(
        0.35, [](double t) { return 320 * std::pow(0.4, t) * (1 + 0.08 * std::sin(60 * t)); },
        [](double t) { return 0.7 * Pluck(t); });
}

bool WriteWav(const std::string& path, const Samples& samples) {
    std::ofstream out(path, std::ios::binary);
    auto u32 = [&](std::uint32_t v) {
        for (int i = 0; i < 4; ++i)
            out.put(char(v >> (8 * i) & 0xFF));
    };
    auto u16 = [&](std::uint16_t v) {
        out.put(char(v & 0xFF));
        out.put(char(v >> 8));
    };
    const std::uint32_t dataBytes = std::uint32_t(samples.size() * 2);
    out.write("RIFF", 4);
    u32(36 + dataBytes);
    out.write("WAVEfmt ", 8);
    u32(16);
    u16(1);  // PCM
    u16(1);  // mono
    u32(kRate);
    u32(kRate * 2);
    u16(2);
    u16(16);
    out.write("data", 4);
    u32(dataBytes);
    for (double v : samples) {
        const double clipped = std::max(-1.0, std::min(1.0, v));
        u16(std::uint16_t(std::int16_t(std::lround(clipped * 30000))));
    }
    return bool(out);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: tavi-make-sounds FOLDER\n";
        return 2;
    }
    const std::string folder = argv[1];
    auto beep = [](double hz, double seconds) {
        return Tone(
            seconds, [=](double) { return hz; },
            [](double t) { return 0.5 * std::min(1.0, t * 30) * Decay(t, 4); });
    };
    const std::pair<const char*, Samples> sounds[] = {
        {"applause.wav", Applause()},
        {"Patch54p.wav", Tone(
                             0.12, [](double t) { return 900 - 400 * t; },
                             [](double t) { return 0.45 * Decay(t, 5); })},
        {"Beep2.wav", beep(880, 0.09)},
        {"Boink4.wav", Boink()},
        {"Blaster_1.wav", Blaster()},
        {"Beep5.wav", beep(660, 0.07)},
        {"Beep1.wav", beep(520, 0.07)},
        {"Cashreg.wav", CashRegister()},
        {"Error.wav", Tone(
                          0.28, [](double) { return 180.0; },
                          [](double t) { return 0.5 * (t < 0.9 ? 1.0 : (1 - t) * 10); }, true)},
        {"Giggle.wav", Giggle()},
    };
    for (const auto& [name, samples] : sounds) {
        if (!WriteWav(folder + "/" + name, samples)) {
            std::cerr << "tavi-make-sounds: cannot write " << folder << "/" << name << '\n';
            return 1;
        }
    }
    return 0;
}
