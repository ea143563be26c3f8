// A room without sources yet still needs one translation unit.
namespace vela {
extern const int emptyRoom;
const int emptyRoom = 0;
} // namespace vela
