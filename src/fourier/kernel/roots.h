// Literal cosines for the straight-line kernels.
#pragma once

namespace vlq::fft {

// cos(2 pi k / 32)
inline constexpr double kCosine32[9] = {1.0,
                                        0.98078528040323044913,
                                        0.92387953251128675613,
                                        0.83146961230254523708,
                                        0.70710678118654752440,
                                        0.55557023301960222474,
                                        0.38268343236508977173,
                                        0.19509032201612826785,
                                        0.0};
constexpr double cosine32(int k) {
    k &= 31;
    if (k > 16) k = 32 - k;
    return k > 8 ? -kCosine32[16 - k] : kCosine32[k];
}

}  // namespace vlq::fft
