#include <gtest/gtest.h>

#include <algorithm>

#include "platform/posix/KernelInfrared.h"

namespace brask {
namespace {

TEST(KernelInfrared, RecordsAndAddressesAreTurnedIntoTheStatedForms) {
    posix::KernelDeviceList list{};
    list[0] = 2;
    const std::string records[] = {std::string("meme\x11\x22\x33\x44VEK TK42", 16),
                                   std::string("meme\x55\x66\x77\x88PHONE", 13)};
    for (std::size_t i = 0; i < 2; ++i) {
        char* const record = list.data() + 4 + i * 36;
        std::copy(records[i].begin(), records[i].end(), record);
        std::copy_n("chh", 3, record + 30);
    }
    InfraredDeviceList devices = posix::DevicesFromKernel(list, 4 + 2 * 36);
    EXPECT_EQ(std::string(devices.data(), 20),
              std::string("\2\0\0\0\x11\x22\x33\x44VEK TK42\0\0\0\0", 20));
    EXPECT_EQ(std::string(devices.data() + 30, 13), std::string("hhc\0\x55\x66\x77\x88PHONE", 13));
    EXPECT_EQ(posix::DevicesFromKernel(list, 4 + 36 + 35)[0], 1);
    EXPECT_EQ(posix::DevicesFromKernel(list, 3)[0], 0);
    list[0] = list[1] = '\xFF';
    EXPECT_EQ(posix::DevicesFromKernel(list, list.size())[0], 9);

    InfraredAddress address{};
    const std::string bytes("\x1A\0\x11\x22\x33\x44IrDA:IrCOMM", 17);
    std::copy(bytes.begin(), bytes.end(), address.begin());
    const posix::KernelAddress kernel = posix::AddressForKernel(address);
    EXPECT_EQ(std::string(kernel.data(), 20),
              std::string("\x17\0\xFF\0\x11\x22\x33\x44IrDA:IrCOMM\0", 20));
}

}  // namespace
}  // namespace brask
