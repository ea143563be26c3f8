// What hosts hand to a control besides its site: property bags, streams, storages and advise sinks.
#pragma once

#include "com_object.h"

#include <algorithm>
#include <cwchar>
#include <map>
#include <string>

namespace vela::test {

class Bag final : public ComObject<IPropertyBag> {
public:
    std::map<std::u16string, Variant> values;
    int failAfter = -1; // reads or writes until the bag fails
    HRESULT failure = STG_E_READFAULT;

    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override
    {
        if (const HRESULT refused = called("IPropertyBag::Read"); FAILED(refused))
            return refused;
        if (failAfter-- == 0)
            return failure;
        const auto found = values.find(key(name));
        if (found == values.end())
            return E_INVALIDARG;
        const VARTYPE wanted = value->vt;
        const HRESULT copied = VariantCopy(value, const_cast<VARIANT*>(&found->second.get()));
        return FAILED(copied) || wanted == VT_EMPTY ? copied
                                                    : VariantChangeType(value, value, VARIANT_ALPHABOOL, wanted);
    }
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override
    {
        if (const HRESULT refused = called("IPropertyBag::Write"); FAILED(refused))
            return refused;
        if (failAfter-- == 0)
            return failure;
        return VariantCopy(&values[key(name)].ref(), value);
    }

private:
    static std::u16string key(const wchar_t* name) { return {name, name + std::wcslen(name)}; }
};

class Stream final : public ComObject<IStream> {
public:
    std::string bytes;
    std::size_t position = 0;
    ULONG room = 0xFFFFFFFF; // of one writing; a medium that is full may say so by this alone

    HRESULT STDMETHODCALLTYPE Read(void* into, ULONG size, ULONG* read) override
    {
        if (const HRESULT refused = called("IStream::Read"); FAILED(refused))
            return refused;
        const std::size_t given = bytes.copy(static_cast<char*>(into), size, std::min(position, bytes.size()));
        position += given;
        if (read)
            *read = static_cast<ULONG>(given);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Write(const void* from, ULONG size, ULONG* written) override
    {
        if (const HRESULT refused = called("IStream::Write"); FAILED(refused))
            return refused;
        bytes.resize(std::min(position, bytes.size()));
        bytes.append(static_cast<const char*>(from), std::min(size, room));
        position = bytes.size();
        if (written)
            *written = std::min(size, room);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetSize(ULARGE_INTEGER) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Revert() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IStream**) override { return E_NOTIMPL; }
};

// The control's picture, in a rectangle of the device's units.
inline HRESULT drawn(IViewObject& view, HDC dc, const RECTL* bounds, LONG part = -1, DWORD aspect = DVASPECT_CONTENT)
{
    return view.Draw(aspect, part, nullptr, nullptr, nullptr, dc, bounds, nullptr, nullptr, 0);
}

// A storage of one stream.
class Storage final : public ComObject<IStorage> {
public:
    ComPtr<Stream> stream = adopt<Stream>(new Stream);

    HRESULT STDMETHODCALLTYPE CreateStream(LPCOLESTR, DWORD, DWORD, DWORD, IStream** made) override
    {
        return give("IStorage::CreateStream", made);
    }
    HRESULT STDMETHODCALLTYPE OpenStream(LPCOLESTR, void*, DWORD, DWORD, IStream** found) override
    {
        return give("IStorage::OpenStream", found);
    }
    HRESULT STDMETHODCALLTYPE CreateStorage(LPCOLESTR, DWORD, DWORD, DWORD, IStorage**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OpenStorage(LPCOLESTR, IStorage*, DWORD, SNB, DWORD, IStorage**) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE CopyTo(DWORD, const IID*, SNB, IStorage*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE MoveElementTo(LPCOLESTR, IStorage*, LPCOLESTR, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Revert() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumElements(DWORD, void*, DWORD, IEnumSTATSTG**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DestroyElement(LPCOLESTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RenameElement(LPCOLESTR, LPCOLESTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetElementTimes(LPCOLESTR, const FILETIME*, const FILETIME*, const FILETIME*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetClass(REFCLSID) override { return called("IStorage::SetClass"); }
    HRESULT STDMETHODCALLTYPE SetStateBits(DWORD, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }

private:
    HRESULT give(const char* call, IStream** given)
    {
        *given = nullptr;
        if (const HRESULT refused = called(call); FAILED(refused))
            return refused;
        stream->position = 0;
        *given = ComPtr(stream).Detach();
        return S_OK;
    }
};

class AdviseSink final : public ComObject<IAdviseSink> {
public:
    int views = 0;

    void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override { called("OnDataChange"); }
    void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override
    {
        ++views;
        called("OnViewChange");
    }
    void STDMETHODCALLTYPE OnRename(IMoniker*) override {}
    void STDMETHODCALLTYPE OnSave() override { called("OnSave"); }
    void STDMETHODCALLTYPE OnClose() override { called("OnClose"); }
};

} // namespace vela::test
