// From the places where a word stands to the texts that hold it, 64 bytes at a time. To be included by code
// that the vector library compiles once for each set of instructions, inside the namespace of the set.
//
// There is no include guard: each inclusion is for another set.

// Counting bits and finding the lowest one are single instructions only where the processor is known to have
// them, so that this is compiled anew for each set though nothing here is a vector.

#if HWY_ARCH_X86 && HWY_TARGET <= HWY_AVX3

/// Sets bit k of an array for each text k (from 0) that has a place. Gathering bits is a single instruction
/// on every processor that has these vectors; on some older ones it is slower than a loop. No branch depends
/// on what was found, so that a word that stands everywhere costs no more than one that stands in a few
/// texts.
class TextGathering {
 public:
  /// The array has room for one element more than the texts need.
  explicit TextGathering(std::uint64_t* texts) : texts_(texts) {}

  /// The next 64 bytes: the places in them, and the ends of texts, at which there is no place.
  HWY_INLINE void add(std::uint64_t places, std::uint64_t ends) {
    // The bytes of a text are a run of ones that ends below its end. Added to it, one place or more carry
    // over into the end, and from the last run into the next 64 bytes.
    unsigned long long sum = 0;
    carry_ = _addcarry_u64(carry_, ~ends, places, &sum);
    const std::uint64_t seen = _pext_u64(sum, ends);
    gathered_ |= seen << used_;
    *texts_ = gathered_;
    const std::uint64_t overflow = (seen >> 1) >> (63 - used_);
    const unsigned total = used_ + static_cast<unsigned>(__builtin_popcountll(ends));
    const bool full = total >= 64;
    texts_ += full ? 1 : 0;
    gathered_ = full ? overflow : gathered_;
    used_ = total % 64;
  }

  void finish() { *texts_ = gathered_; }

 private:
  std::uint64_t* texts_;
  std::uint64_t gathered_ = 0;
  unsigned used_ = 0;
  unsigned char carry_ = 0;
};

#else

/// Sets bit k of an array for each text k (from 0) that has a place.
class TextGathering {
 public:
  /// The array has room for one element more than the texts need.
  explicit TextGathering(std::uint64_t* texts) : texts_(texts) { texts_[0] = 0; }

  /// The next 64 bytes: the places in them, and the ends of texts, at which there is no place.
  void add(std::uint64_t places, std::uint64_t ends) {
    while (places != 0) {
      const std::uint64_t place = places & (~places + 1);
      for (; (ends & (place - 1)) != 0; ends &= ends - 1) nextText();
      texts_[text_ / 64] |= std::uint64_t{1} << (text_ % 64);
      // The rest of this text is passed over.
      places &= ~(ends == 0 ? ~std::uint64_t{0} : ends ^ (ends - 1));
    }
    for (; ends != 0; ends &= ends - 1) nextText();
  }

  void finish() {}

 private:
  void nextText() {
    if (++text_ % 64 == 0) texts_[text_ / 64] = 0;
  }

  std::uint64_t* texts_;
  std::size_t text_ = 0;
};

#endif
