#include "tests/stage/resources.h"

#include <cstdint>
#include <vector>
#include <windows.h>
// Behind it, as it needs it.
#include <psapi.h>

namespace corvane::stage {

namespace {

// Handles of user objects and of GDI objects are places in tables, with a mark of their age above. Those of user
// objects are even, and free places are used again before new ones, so that only the first of the long table are.
constexpr UINT_PTR kGdiPlaces = 0x10000, kUserPlaces = 0x2000;

template <class Handle>
Handle AtPlace(UINT_PTR place) {
  return reinterpret_cast<Handle>(place);
}

bool IsOwnWindow(UINT_PTR place) {
  DWORD process = 0;
  return IsWindow(AtPlace<HWND>(place)) && GetWindowThreadProcessId(AtPlace<HWND>(place), &process) != 0 &&
         process == GetCurrentProcessId();
}

bool IsIconOrCursor(UINT_PTR place) {
  ICONINFO info{};
  if (!GetIconInfo(AtPlace<HICON>(place), &info)) return false;
  DeleteObject(info.hbmColor);
  DeleteObject(info.hbmMask);
  return true;
}

// Where the system does not tell the numbers of user and GDI objects, the tables are walked.
long CountUser() {
  if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS)) return static_cast<long>(told);
  long count = 0;
  for (UINT_PTR place = 2; place < kUserPlaces; place += 2)
    count += IsOwnWindow(place) || IsMenu(AtPlace<HMENU>(place)) || IsIconOrCursor(place) ||
             CopyAcceleratorTableW(AtPlace<HACCEL>(place), nullptr, 0) > 0;
  return count;
}

long CountGdi() {
  if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) return static_cast<long>(told);
  long count = 0;
  for (UINT_PTR place = 1; place < kGdiPlaces; ++place) count += GetObjectType(AtPlace<HGDIOBJ>(place)) != 0;
  return count;
}

// SystemHandleInformation: entries of 24 bytes (16 in 32-bit processes) that begin with the process.
struct HandleEntry {
  ULONG process;
  BYTE type, flags;
  USHORT handle;
  void* object;
  ULONG access;
};
struct HandleTable {
  ULONG count;
  HandleEntry entries[1];
};

long CountKernel() {
  DWORD told = 0;
  if (GetProcessHandleCount(GetCurrentProcess(), &told) && told != 0) return static_cast<long>(told);
  using Query = LONG(WINAPI*)(ULONG, void*, ULONG, ULONG*);
  const auto query = reinterpret_cast<Query>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
  std::vector<char> buffer(1 << 20);
  if (query(16, buffer.data(), static_cast<ULONG>(buffer.size()), nullptr) != 0) return -1;
  const auto* table = reinterpret_cast<const HandleTable*>(buffer.data());
  long count = 0;
  for (ULONG i = 0; i < table->count; ++i) count += table->entries[i].process == GetCurrentProcessId();
  return count;
}

long long BytesInHeaps() {
  std::vector<HANDLE> heaps(256);
  const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
  long long bytes = 0;
  for (DWORD i = 0; i < count && i < heaps.size(); ++i) {
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heaps[i]);
    while (HeapWalk(heaps[i], &entry))
      if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
    HeapUnlock(heaps[i]);
  }
  return bytes;
}

long long PrivateBytes() {
  PROCESS_MEMORY_COUNTERS_EX memory{};
  K32GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory), sizeof(memory));
  return static_cast<long long>(memory.PrivateUsage ? memory.PrivateUsage : memory.PagefileUsage);
}

}  // namespace

Resources Resources::Now() {
  return {CountUser(), CountGdi(), CountKernel(), BytesInHeaps(), PrivateBytes()};
}

std::string Resources::Text() const {
  return "user " + std::to_string(user) + ", GDI " + std::to_string(gdi) + ", kernel " + std::to_string(kernel) +
         ", heap " + std::to_string(heap) + ", memory " + std::to_string(memory);
}

}  // namespace corvane::stage
