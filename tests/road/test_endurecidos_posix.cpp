// SPDX-License-Identifier: GPL-3.0-or-later
// The programs as the linker made them, read from their own headers.

#include "apoyo/apoyo.h"

#include <QFile>

#include <elf.h>

#include <cstring>
#include <optional>

namespace {

class Programa
{
public:
    explicit Programa(const char* ruta)
    {
        QFile f(QString::fromUtf8(ruta));
        if (f.open(QIODevice::ReadOnly))
            bytes_ = f.readAll();
    }
    [[nodiscard]] bool esElf() const
    {
        return bytes_.startsWith(ELFMAG) && bytes_.size() > qsizetype(sizeof(Elf64_Ehdr));
    }
    [[nodiscard]] Elf64_Ehdr cabeza() const { return en<Elf64_Ehdr>(0); }
    [[nodiscard]] std::optional<Elf64_Phdr> segmento(Elf64_Word tipo) const
    {
        for (const auto& s : tabla<Elf64_Phdr>(cabeza().e_phoff, cabeza().e_phnum))
            if (s.p_type == tipo)
                return s;
        return {};
    }
    [[nodiscard]] Elf64_Xword dinamico(Elf64_Sxword marca) const
    {
        const auto s = segmento(PT_DYNAMIC);
        for (const auto& d : tabla<Elf64_Dyn>(s ? s->p_offset : 0, s ? s->p_filesz / sizeof(Elf64_Dyn) : 0))
            if (d.d_tag == marca)
                return d.d_un.d_val;
        return 0;
    }
    // What it takes from libraries.
    [[nodiscard]] QList<QByteArray> tomados() const
    {
        QList<QByteArray> nombres;
        const auto secciones = tabla<Elf64_Shdr>(cabeza().e_shoff, cabeza().e_shnum);
        for (const auto& s : secciones)
            if (s.sh_type == SHT_DYNSYM)
                for (const auto& simbolo : tabla<Elf64_Sym>(s.sh_offset, s.sh_size / sizeof(Elf64_Sym)))
                    if (simbolo.st_shndx == SHN_UNDEF)
                        nombres << QByteArray(bytes_.constData() + secciones[s.sh_link].sh_offset + simbolo.st_name);
        return nombres;
    }

private:
    template <typename T>
    [[nodiscard]] T en(size_t lugar) const
    {
        T t{};
        if (lugar + sizeof t <= size_t(bytes_.size()))
            std::memcpy(&t, bytes_.constData() + lugar, sizeof t);
        return t;
    }
    template <typename T>
    [[nodiscard]] std::vector<T> tabla(size_t lugar, size_t cuantos) const
    {
        std::vector<T> t;
        for (size_t i = 0; i < cuantos; ++i)
            t.push_back(en<T>(lugar + i * sizeof(T)));
        return t;
    }

    QByteArray bytes_;
};

class Endurecidos : public testing::TestWithParam<const char*>
{
};

TEST_P(Endurecidos, EnSusCabeceras)
{
    const Programa p(GetParam());
    ASSERT_TRUE(p.esElf());
    EXPECT_EQ(p.cabeza().e_type, ET_DYN);
    EXPECT_TRUE(p.dinamico(DT_FLAGS_1) & DF_1_PIE);
    EXPECT_TRUE(p.segmento(PT_GNU_RELRO));  // with the immediate binding all of the table is read only
    EXPECT_TRUE((p.dinamico(DT_FLAGS) & DF_BIND_NOW) || (p.dinamico(DT_FLAGS_1) & DF_1_NOW));
    const auto pila = p.segmento(PT_GNU_STACK);
    EXPECT_TRUE(pila && !(pila->p_flags & PF_X));
    EXPECT_TRUE(p.tomados().contains("__stack_chk_fail"));
}

TEST_P(Endurecidos, ConLlamadasFortificadas)
{
#ifndef RTN_FORTIFICADO
    GTEST_SKIP() << "a build without optimization, or with a sanitizer, has no fortified calls";
#endif
    const auto tomados = Programa(GetParam()).tomados();
    EXPECT_TRUE(std::any_of(tomados.begin(), tomados.end(), [](const QByteArray& s) { return s.endsWith("_chk"); }));
}
INSTANTIATE_TEST_SUITE_P(Programas, Endurecidos,
                         testing::Values(RTN_PROGRAMA, RTN_CREAR_BASE, RTN_LEER_DJ, RTN_RAR, RTN_RESPALDO));

}  // namespace
