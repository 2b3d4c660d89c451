#include "demo/png_writer.h"
#include <wincodec.h>

namespace {

// Releases a COM interface when it goes out of scope.
template <class T> class ComRef {
public:
    ComRef() = default;
    ~ComRef() { if (m_p) m_p->Release(); }
    ComRef(const ComRef&) = delete;
    ComRef& operator=(const ComRef&) = delete;
    T* operator->() const { return m_p; }
    T* get() const { return m_p; }
    T** out() { return &m_p; }

private:
    T* m_p = nullptr;
};

HRESULT WriteFrame(IWICBitmapEncoder* encoder, int width, int height, const uint32_t* pixels)
{
    ComRef<IWICBitmapFrameEncode> frame;
    HRESULT hr = encoder->CreateNewFrame(frame.out(), nullptr);
    if (SUCCEEDED(hr)) hr = frame->Initialize(nullptr);
    if (SUCCEEDED(hr)) hr = frame->SetSize(width, height);
    WICPixelFormatGUID format = GUID_WICPixelFormat32bppBGRA;
    if (SUCCEEDED(hr)) hr = frame->SetPixelFormat(&format);
    // The encoder may answer with a format it prefers; the pixels given are BGRA and nothing else.
    if (SUCCEEDED(hr) && !IsEqualGUID(format, GUID_WICPixelFormat32bppBGRA)) hr = WINCODEC_ERR_UNSUPPORTEDPIXELFORMAT;
    UINT stride = static_cast<UINT>(width) * 4;
    BYTE* bytes = reinterpret_cast<BYTE*>(const_cast<uint32_t*>(pixels));
    if (SUCCEEDED(hr)) hr = frame->WritePixels(height, stride, stride * height, bytes);
    if (SUCCEEDED(hr)) hr = frame->Commit();
    return hr;
}

HRESULT Encode(const std::wstring& path, int width, int height, const uint32_t* pixels)
{
    ComRef<IWICImagingFactory> factory;
    HRESULT hr = CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                  IID_IWICImagingFactory, reinterpret_cast<void**>(factory.out()));
    ComRef<IWICStream> stream;
    if (SUCCEEDED(hr)) hr = factory->CreateStream(stream.out());
    if (SUCCEEDED(hr)) hr = stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE);
    ComRef<IWICBitmapEncoder> encoder;
    if (SUCCEEDED(hr)) hr = factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.out());
    if (SUCCEEDED(hr)) hr = encoder->Initialize(stream.get(), WICBitmapEncoderNoCache);
    if (SUCCEEDED(hr)) hr = WriteFrame(encoder.get(), width, height, pixels);
    if (SUCCEEDED(hr)) hr = encoder->Commit();
    return hr;
}

}  // namespace

HRESULT WritePng(const std::wstring& path, int width, int height, const uint32_t* pixels)
{
    if (width <= 0 || height <= 0 || pixels == nullptr) return E_INVALIDARG;
    // Nested initialisations are counted; a thread already in another apartment stays in it.
    HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    HRESULT hr = Encode(path, width, height, pixels);
    if (SUCCEEDED(com)) CoUninitialize();
    return hr;
}
