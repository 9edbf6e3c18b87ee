#include "doubles/DossierTemporaire.h"
#include "platform/systeme/TableMontages.h"
#include "platform/systeme/Volumes.h"

#include <cerrno>

#include <gtest/gtest.h>
#include <sys/wait.h>

namespace {

const char* const kTable =
    "22 28 0:20 / /sys rw,nosuid shared:7 - sysfs sysfs rw\n"
    "23 28 0:21 / /proc rw shared:14 - proc proc rw\n"
    "28 1 8:2 / / rw,relatime shared:1 - ext4 /dev/sda2 rw\n"
    "30 28 8:1 / /boot/efi rw - vfat /dev/sda1 rw\n"
    "41 28 0:60 / /var/lib/docker/overlay2/x/merged rw - overlay overlay rw\n"
    "50 28 8:33 / /media/eve/FILMS\\040D'\\303\\251t\\303\\251\\1342 rw shared:9 master:2 - fuseblk /dev/sdc1 rw\n"
    "51 28 8:17 / /home rw - ext4 /dev/sdb1 rw\n"
    "52 28 2:0 / /media/floppy0 rw - vfat /dev/fd0 rw\n"
    "53 28 0:70 / /mnt/nas rw - nfs4 nas:/films rw\n"
    "54 28 0:71 / /home/eve/distant rw - fuse.sshfs eve@loin:/ rw\n"
    "57 28 0:80 / /mnt/memoire rw - tmpfs tmpfs rw\n"
    "58 28 0:81 / /media/vieux rw - autofs systemd-1 rw\n"
    "59 28 8:49 / /media/vieux rw - vfat /dev/sdd1 rw\n"
    "60 28 8:50 / /media/cache\\04 rw - vfat\n"
    "no line of a table\n\n61 28 8:2\n";

std::string decrit(const systeme::Montage& montage) {
    return montage.racine + (montage.reseau ? " (réseau)" : "") + (montage.disquette ? " (disquette)" : "");
}

std::string commeLeNoyau(const std::string& chemin) {
    std::string texte;
    for (const char c : chemin)
        texte += c == ' ' ? "\\040" : c == '\\' ? "\\134" : std::string(1, c);
    return texte;
}

}  // namespace

TEST(Volumes, AreReadFromTheKernelsTableTheSystemsOwnLast) {
    std::vector<std::string> lus;
    for (const systeme::Montage& montage : systeme::litMontages(kTable))
        lus.push_back(decrit(montage));
    EXPECT_EQ(lus, (std::vector<std::string>{"/home", "/home/eve/distant (réseau)", "/media/cache\\04",
                                             "/media/eve/FILMS D'été\\2", "/media/floppy0 (disquette)", "/media/vieux",
                                             "/mnt/memoire", "/mnt/nas (réseau)", "/"}));
    EXPECT_EQ(systeme::litMontages("1 0 0:1 / / rw - overlay overlay rw\n").size(), 1u) << "a container's root";
}

TEST(Volumes, ANetworkThatDoesNotAnswerIsToldFromOneThatDoes) {
    const doubles::DossierTemporaire dossier;
    dossier.ecrit("vivant/a.avi", "film");
    dossier.ecrit("disquette/a.avi", "film");
    // Not by the names that the system's own folders have: the temporary folder may lie in one of these.
    const std::string ici = commeLeNoyau("/." + dossier.chemin());
    const std::string table = dossier.ecrit("table", "1 0 0:1 / " + ici + "mort rw - nfs nas:/ rw\n" +           //
                                                         "2 0 0:2 / " + ici + "vivant rw - cifs //nas/x rw\n" +  //
                                                         "3 0 0:3 / " + ici + "disquette rw - vfat /dev/fd1 rw\n");
    const auto volumes = systeme::VolumesSysteme(table, std::chrono::minutes(2)).liste();
    ASSERT_EQ(volumes.size(), 3u);
    EXPECT_FALSE(volumes[0].repond) << volumes[0].racine;
    EXPECT_FALSE(volumes[1].repond) << volumes[1].racine;
    EXPECT_TRUE(volumes[2].repond) << volumes[2].racine;
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left to wait for";
    EXPECT_EQ(errno, ECHILD);
}
