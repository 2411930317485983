#include "value/treememory.h"

#include <algorithm>
#include <array>
#include <new>

namespace TKE
{

// Sanitizers want to see each piece by itself.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool pooled = false;
#elif defined(__has_feature)
constexpr bool pooled = !__has_feature(address_sanitizer);
#else
constexpr bool pooled = true;
#endif

namespace
{

constexpr std::size_t grain = alignof(std::max_align_t) / 2;
constexpr std::size_t largestPiece = 128;
constexpr std::size_t firstBlock = 4UL * 1024;
constexpr std::size_t largestBlock = 256UL * 1024;

struct Link
{
    Link* next;
};

// Pieces of one size.
struct Shelf
{
    Link* free = nullptr;
    Link* blocks = nullptr; // each begins with its link
    char* begin = nullptr;  // what is left of the latest block
    char* end = nullptr;
    std::size_t blockSize = firstBlock;
    std::size_t taken = 0;

    void* Take(std::size_t size)
    {
        ++taken;
        if (free)
        {
            void* piece = free;
            free = free->next;
            return piece;
        }
        if (std::size_t(end - begin) < size)
        {
            begin = static_cast<char*>(::operator new(blockSize));
            end = begin + blockSize;
            blocks = new (begin) Link{blocks};
            begin += sizeof(Link);
            blockSize = std::min(blockSize * 2, largestBlock);
        }
        void* piece = begin;
        begin += size;
        return piece;
    }
    void Give(void* piece)
    {
        free = new (piece) Link{free};
        if (--taken > 0)
            return;
        while (Link* block = blocks)
        {
            blocks = block->next;
            ::operator delete(block);
        }
        *this = {};
    }
};

// Without a destructor: trees may outlive any other object.
constinit std::array<Shelf, largestPiece / grain + 1> shelves;

constexpr bool IsPooled(std::size_t size)
{
    return pooled && size <= largestPiece && size % grain == 0;
}

} // namespace

void* TreeMemory::Take(std::size_t size)
{
    return IsPooled(size) ? shelves[size / grain].Take(size) : ::operator new(size);
}

void TreeMemory::Give(void* piece, std::size_t size) noexcept
{
    if (IsPooled(size))
        shelves[size / grain].Give(piece);
    else
        ::operator delete(piece);
}

} // namespace TKE
