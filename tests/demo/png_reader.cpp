#include "png_reader.h"
#include <wincodec.h>

namespace {

template <class T> void Release(T*& p)
{
    if (p) p->Release();
    p = nullptr;
}

HRESULT ReadFrame(IWICImagingFactory* factory, IWICBitmapFrameDecode* frame, DecodedPng& png)
{
    WICPixelFormatGUID format = {};
    HRESULT hr = frame->GetPixelFormat(&format);
    png.bgra = SUCCEEDED(hr) && IsEqualGUID(format, GUID_WICPixelFormat32bppBGRA);
    UINT width = 0, height = 0;
    if (SUCCEEDED(hr)) hr = frame->GetSize(&width, &height);
    IWICFormatConverter* converter = nullptr;
    if (SUCCEEDED(hr)) hr = factory->CreateFormatConverter(&converter);
    if (SUCCEEDED(hr))
        hr = converter->Initialize(frame, GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone, nullptr, 0,
                                   WICBitmapPaletteTypeCustom);
    if (SUCCEEDED(hr)) {
        png.width = static_cast<int>(width);
        png.height = static_cast<int>(height);
        png.pixels.resize(static_cast<size_t>(width) * height);
        UINT stride = width * 4;
        hr = converter->CopyPixels(nullptr, stride, stride * height, reinterpret_cast<BYTE*>(png.pixels.data()));
    }
    Release(converter);
    return hr;
}

}  // namespace

COLORREF DecodedPng::Color(int x, int y) const
{
    uint32_t p = pixels[y * width + x];
    return RGB((p >> 16) & 0xFF, (p >> 8) & 0xFF, p & 0xFF);
}

DecodedPng ReadPng(const std::wstring& path)
{
    DecodedPng png;
    HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    IWICImagingFactory* factory = nullptr;
    IWICBitmapDecoder* decoder = nullptr;
    IWICBitmapFrameDecode* frame = nullptr;
    HRESULT hr = CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                                  reinterpret_cast<void**>(&factory));
    if (SUCCEEDED(hr))
        hr = factory->CreateDecoderFromFilename(path.c_str(), nullptr, GENERIC_READ, WICDecodeMetadataCacheOnDemand,
                                                &decoder);
    GUID container = {};
    if (SUCCEEDED(hr)) hr = decoder->GetContainerFormat(&container);
    if (SUCCEEDED(hr) && !IsEqualGUID(container, GUID_ContainerFormatPng)) hr = WINCODEC_ERR_UNKNOWNIMAGEFORMAT;
    if (SUCCEEDED(hr)) hr = decoder->GetFrame(0, &frame);
    if (SUCCEEDED(hr)) hr = ReadFrame(factory, frame, png);
    Release(frame);
    Release(decoder);
    Release(factory);
    if (SUCCEEDED(com)) CoUninitialize();
    png.result = hr;
    return png;
}
