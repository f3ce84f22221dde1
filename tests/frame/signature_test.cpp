// What holds for every exported function alike: each required pointer null in turn, lengths 0 and
// -1, the order of these checks, and outputs untouched on each error. Records are given as memory
// that holds no record, so that no call gets past its checks.
#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <memory>
#include <set>

#include "harness/buffer.h"
#include "harness/signatures.h"

namespace {

using namespace vlqtest;

bool startsWith(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}
bool endsWith(std::string_view text, std::string_view suffix) {
    return text.size() >= suffix.size() && text.substr(text.size() - suffix.size()) == suffix;
}
bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

bool isRecord(const Parameter& p) {
    return p.isPointer() && startsWith(p.type, "Vlqs") &&
           p.type.find("**") == std::string_view::npos;
}
bool isConstRecord(const Parameter& p) { return startsWith(p.type, "const Vlqs"); }

bool isTransform(const Signature& s) {
    return startsWith(s.name, "vlqsFFTFwd") || startsWith(s.name, "vlqsFFTInv");
}

// Pointers that may be null.
bool isOptional(const Signature& s, const Parameter& p) {
    if (startsWith(s.name, "vlqsFFT")) return p.name == "buf" || p.name == "initBuf";
    if (startsWith(s.name, "vlqsFIR")) {
        return p.name == "dlyLine" && !contains(s.name, "GetDlyLine") &&
               !contains(s.name, "_Direct");
    }
    // Either part of a join, but not both.
    return startsWith(s.name, "vlqsRealToCplx") && (p.name == "srcRe" || p.name == "srcIm");
}

// What is looked at only when the first one of two steps has given its results.
bool isTestedLate(const Signature& s, const Parameter& p) {
    return s.name == "vlqsCartToPolar_16sc_Sfs" && p.name == "dstPhase";
}

// The complex element-wise forms of these families hand over to their real twins with twice the
// length, after a look at the length: there a bad length wins over a null pointer.
bool testsLengthFirst(const Signature& s) {
    const bool family = startsWith(s.name, "vlqsAdd_") || startsWith(s.name, "vlqsSub_");
    const bool complex = contains(s.name, "c_") || endsWith(s.name, "c");
    return family && complex;
}

class Call {
public:
    explicit Call(const Signature& s) : signature_(s) {
        for (const Parameter& p : s.parameters) {
            buffers_.emplace_back(std::make_unique<Buffer<std::uint8_t>>(4096));
            arguments_.pointers.push_back(p.isPointer() ? buffers_.back()->data() : nullptr);
            // A phase must be below its factor.
            arguments_.values.push_back(endsWith(p.name, "Phase") ? 0 : 3);
            if (contains(p.type, "* const") || contains(p.type, "**")) fillRows(*buffers_.back());
        }
    }
    void setPointer(std::size_t i, void* pointer) { arguments_.pointers[i] = pointer; }
    void setValue(std::size_t i, long long value) { arguments_.values[i] = value; }

    // Calls, and expects that status and no write anywhere.
    void expect(VlqStatus status, const std::string& situation) {
        std::vector<std::vector<std::uint8_t>> before;
        for (const auto& buffer : buffers_) before.push_back(buffer->values());
        EXPECT_EQ(status, signature_.call(arguments_)) << signature_.name << ", " << situation;
        for (std::size_t i = 0; i < buffers_.size(); ++i) {
            EXPECT_TRUE(same(*buffers_[i], before[i]))
                << signature_.name << " wrote to " << signature_.parameters[i].name;
        }
    }

private:
    // Arrays of row pointers point to memory of their own.
    void fillRows(Buffer<std::uint8_t>& table) {
        rows_.emplace_back(std::make_unique<Buffer<std::uint8_t>>(4096));
        std::vector<std::uint8_t> bytes(table.size());
        void* row = rows_.back()->data();
        for (std::size_t i = 0; i + sizeof row <= bytes.size(); i += sizeof row)
            std::memcpy(&bytes[i], &row, sizeof row);
        table.assign(bytes);
    }

    const Signature& signature_;
    std::vector<std::unique_ptr<Buffer<std::uint8_t>>> buffers_;
    std::vector<std::unique_ptr<Buffer<std::uint8_t>>> rows_;
    Arguments arguments_;
};

// FIR filters without a record look at the samples and their number before taps and delay line.
bool isLookedAtAfterLength(const Signature& s, const Parameter& p) {
    return contains(s.name, "_Direct") && (p.name == "taps" || startsWith(p.name, "dlyLine"));
}

int lengthIndex(const Signature& s) {
    for (std::size_t i = 0; i < s.parameters.size(); ++i) {
        if (s.parameters[i].name == "len" || s.parameters[i].name == "numIters")
            return static_cast<int>(i);
    }
    return -1;
}

TEST(EveryFunction, StandsInTheTable) {
    std::set<std::string> known;
    for (const Signature& s : signatures()) known.insert(std::string(s.name));
    std::ifstream file(VLQS_NAMES_FILE);
    for (std::string line; std::getline(file, line);) {
        const std::string name = line.substr(0, line.find(' '));
        if (startsWith(name, "vlqsMalloc") || name == "vlqsFree" || name == "vlqsGetLibVersion")
            continue;
        EXPECT_EQ(1u, known.count(name)) << name;
    }
}

TEST(EveryFunction, NullPointers) {
    for (const Signature& s : signatures()) {
        for (std::size_t i = 0; i < s.parameters.size(); ++i) {
            const Parameter& p = s.parameters[i];
            if (!p.isPointer() || isOptional(s, p) || isTestedLate(s, p)) continue;
            // A transform looks at its record first and takes memory without a record for dead.
            const bool dataOfTransform = isTransform(s) && !isRecord(p) && !isConstRecord(p);
            Call call(s);
            call.setPointer(i, nullptr);
            call.expect(dataOfTransform ? vlqStsBadSpec : vlqStsNullPtr,
                        std::string(p.name) + " null");
            const int len = lengthIndex(s);
            if (len < 0) continue;
            call.setValue(static_cast<std::size_t>(len), 0);
            call.expect(
                testsLengthFirst(s) || isLookedAtAfterLength(s, p) ? vlqStsBadSize : vlqStsNullPtr,
                std::string(p.name) + " null, len 0");
        }
    }
}

TEST(EveryFunction, Lengths) {
    for (const Signature& s : signatures()) {
        const int len = lengthIndex(s);
        if (len < 0) continue;
        const bool isUnsigned = s.parameters[static_cast<std::size_t>(len)].type == "Vlq32u";
        Call call(s);
        call.setValue(static_cast<std::size_t>(len), 0);
        call.expect(vlqStsBadSize, "len 0");
        if (isUnsigned) continue;
        call.setValue(static_cast<std::size_t>(len), -1);
        call.expect(vlqStsBadSize, "len -1");
        call.setValue(static_cast<std::size_t>(len), INT32_MIN);
        call.expect(vlqStsBadSize, "len -2^31");
    }
}

TEST(EveryFunction, RecordsOfNoKind) {
    for (const Signature& s : signatures()) {
        bool takesRecord = false;
        for (const Parameter& p : s.parameters)
            takesRecord = takesRecord || isRecord(p) || isConstRecord(p);
        if (!takesRecord) continue;
        Call call(s);
        call.expect(vlqStsBadSpec, "memory that holds no record");
    }
}

}  // namespace
