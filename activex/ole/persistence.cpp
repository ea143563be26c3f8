// The three persistence interfaces of the shell.
#include "activex/ole/persistence.h"

#include "activex/ole/host_bag.h"
#include "activex/ole/settings_stream.h"
#include "activex/ole/shell.h"

#include <algorithm>

namespace vela::activex {

namespace {

constexpr wchar_t contents[] = L"Contents";
constexpr std::size_t chunk = 0x10000;

// Reads to the length wanted or to the stream's end, in pieces: a length that lies costs no memory.
HRESULT readBytes(IStream& stream, std::size_t wanted, std::string& into)
{
    while (into.size() < wanted) {
        const std::size_t before = into.size();
        const std::size_t piece = std::min(wanted - before, chunk);
        into.resize(before + piece);
        ULONG got = 0;
        const HRESULT result = stream.Read(into.data() + before, static_cast<ULONG>(piece), &got);
        into.resize(before + std::min<std::size_t>(got, piece));
        if (FAILED(result))
            return result;
        if (got == 0)
            break;
    }
    return S_OK;
}

HRESULT loadStream(Shell& shell, IStream& stream)
{
    std::string header;
    if (const HRESULT read = readBytes(stream, streamHeaderSize, header); FAILED(read))
        return read;
    const std::size_t length = bodyLength(header);
    std::string body;
    if (const HRESULT read = readBytes(stream, std::min(length, streamCountSize), body); FAILED(read))
        return read;
    if (body.size() == streamCountSize)
        expectFewEntries(body);
    if (const HRESULT read = readBytes(stream, length, body); FAILED(read))
        return read;
    MemoryBag bag = decode(header, body);
    shell.load(bag);
    return S_OK;
}

std::string encoded(Shell& shell)
{
    MemoryBag bag;
    shell.content().save(bag);
    return encode(bag);
}

HRESULT saveStream(Shell& shell, IStream& stream)
{
    const std::string bytes = encoded(shell);
    ULONG written = 0;
    const HRESULT result = stream.Write(bytes.data(), static_cast<ULONG>(bytes.size()), &written);
    if (FAILED(result))
        return result;
    return written == bytes.size() ? S_OK : STG_E_MEDIUMFULL;
}

} // namespace

HRESULT giveClass(const Shell& shell, CLSID* id) noexcept
{
    if (!id)
        return E_POINTER;
    *id = shell.facts().clsid;
    return S_OK;
}

HRESULT dirtyState(const Shell& shell) noexcept
{
    return shell.dirty() ? S_OK : S_FALSE;
}

HRESULT StreamPersistence::Load(IStream* stream) noexcept
{
    if (!stream)
        return E_POINTER;
    return shell_.guarded([&] { return loadStream(shell_, *stream); });
}

HRESULT StreamPersistence::Save(IStream* stream, BOOL clearDirty) noexcept
{
    if (!stream)
        return E_POINTER;
    return shell_.guarded([&] {
        const HRESULT result = saveStream(shell_, *stream);
        if (SUCCEEDED(result) && clearDirty)
            shell_.putDirty(false);
        return result;
    });
}

HRESULT StreamPersistence::GetSizeMax(ULARGE_INTEGER* size) noexcept
{
    if (!size)
        return E_POINTER;
    return shell_.guarded([&] { size->QuadPart = encoded(shell_).size(); });
}

HRESULT StreamPersistence::InitNew() noexcept
{
    return shell_.guarded([&] { shell_.initNew(); });
}

HRESULT StoragePersistence::InitNew(IStorage*) noexcept
{
    return shell_.guarded([&] { shell_.initNew(); });
}

HRESULT StoragePersistence::Load(IStorage* storage) noexcept
{
    if (!storage)
        return E_POINTER;
    return shell_.guarded([&]() -> HRESULT {
        ComPtr<IStream> stream;
        const HRESULT opened = storage->OpenStream(contents, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, &stream);
        return FAILED(opened) ? opened : loadStream(shell_, *stream.Get());
    });
}

HRESULT StoragePersistence::Save(IStorage* storage, BOOL) noexcept
{
    if (!storage)
        return E_POINTER;
    return shell_.guarded([&]() -> HRESULT {
        ComPtr<IStream> stream;
        const HRESULT made =
            storage->CreateStream(contents, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, 0, &stream);
        if (FAILED(made))
            return made;
        const HRESULT saved = saveStream(shell_, *stream.Get());
        if (FAILED(saved))
            return saved;
        WriteClassStg(storage, shell_.facts().clsid);
        savedHere_ = true;
        return S_OK;
    });
}

HRESULT StoragePersistence::SaveCompleted(IStorage*) noexcept
{
    const Shell::Hold hold(shell_);
    if (std::exchange(savedHere_, false)) {
        shell_.putDirty(false);
        shell_.object().saved();
    }
    return S_OK;
}

HRESULT BagPersistence::InitNew() noexcept
{
    return shell_.guarded([&] { shell_.initNew(); });
}

HRESULT BagPersistence::Load(IPropertyBag* bag, IErrorLog* log) noexcept
{
    if (!bag)
        return E_POINTER;
    HostBag own(*bag, log);
    const HRESULT loaded = shell_.guarded([&] { shell_.load(own); });
    return FAILED(own.failure()) ? own.failure() : loaded;
}

HRESULT BagPersistence::Save(IPropertyBag* bag, BOOL clearDirty, BOOL all) noexcept
{
    if (!bag)
        return E_POINTER;
    HostBag own(*bag, nullptr, all != FALSE);
    const HRESULT saved = shell_.guarded([&] { shell_.content().save(own); });
    if (SUCCEEDED(saved) && clearDirty)
        shell_.putDirty(false);
    return FAILED(own.failure()) ? own.failure() : saved;
}

} // namespace vela::activex
