#pragma once
// Reading a fuzzer's bytes as a stream of small values. Past the end every read yields zero and
// an empty text, so a short input is simply a short program.
#include <cstddef>
#include <cstdint>
#include <streambuf>
#include <string>
#include <string_view>

namespace brinto::fuzz {

class ByteReader {
public:
    ByteReader(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}

    bool Done() const { return m_pos >= m_size; }
    std::size_t Remaining() const { return m_size - m_pos; }

    std::uint8_t U8() { return m_pos < m_size ? m_data[m_pos++] : 0; }
    std::uint16_t U16() { return static_cast<std::uint16_t>(U8() | (U8() << 8)); }
    std::uint32_t U32() { return static_cast<std::uint32_t>(U16()) | (static_cast<std::uint32_t>(U16()) << 16); }

    // A text of up to `maxLength` bytes, its length given by the next byte.
    std::string Text(std::size_t maxLength) {
        const std::size_t wanted = U8() % (maxLength + 1);
        const std::size_t n = wanted < Remaining() ? wanted : Remaining();
        std::string text(reinterpret_cast<const char*>(m_data + m_pos), n);
        m_pos += n;
        return text;
    }

    // Everything not read yet.
    std::string_view Rest() {
        const std::string_view rest(reinterpret_cast<const char*>(m_data + m_pos), m_size - m_pos);
        m_pos = m_size;
        return rest;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_pos = 0;
};

// A stream buffer that accepts and forgets everything, so output code runs in full without a
// terminal or a file behind it.
class NullBuffer : public std::streambuf {
protected:
    int_type overflow(int_type c) override { return traits_type::not_eof(c); }
    std::streamsize xsputn(const char*, std::streamsize n) override { return n; }
};

}  // namespace brinto::fuzz
