<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>Constant</name>
    <message>
        <source>Avogadro&apos;s number, NA</source>
        <translation>Número de Avogadro, NA</translation>
    </message>
    <message>
        <source>Boltzmann constant, k</source>
        <translation>Constante de Boltzmann, k</translation>
    </message>
    <message>
        <source>Molar volume, Vm</source>
        <translation>Volume molar, Vm</translation>
    </message>
    <message>
        <source>Universal gas constant, R</source>
        <translation>Constante universal dos gases, R</translation>
    </message>
    <message>
        <source>Standard temperature, StdT</source>
        <translation>Temperatura normal, StdT</translation>
    </message>
    <message>
        <source>Standard pressure, StdP</source>
        <translation>Pressão normal, StdP</translation>
    </message>
    <message>
        <source>Stefan-Boltzmann constant</source>
        <translation>Constante de Stefan-Boltzmann</translation>
    </message>
    <message>
        <source>Speed of light in vacuum, c</source>
        <translation>Velocidade da luz no vácuo, c</translation>
    </message>
    <message>
        <source>Permittivity of vacuum</source>
        <translation>Permitividade do vácuo</translation>
    </message>
    <message>
        <source>Permeability of vacuum</source>
        <translation>Permeabilidade do vácuo</translation>
    </message>
    <message>
        <source>Acceleration of gravity, g</source>
        <translation>Aceleração da gravidade, g</translation>
    </message>
    <message>
        <source>Gravitational constant, G</source>
        <translation>Constante gravitacional, G</translation>
    </message>
    <message>
        <source>Planck&apos;s constant, h</source>
        <translation>Constante de Planck, h</translation>
    </message>
    <message>
        <source>Dirac&apos;s constant, hbar</source>
        <translation>Constante de Planck reduzida, hbar</translation>
    </message>
    <message>
        <source>Electron charge, q</source>
        <translation>Carga do eletrão, q</translation>
    </message>
    <message>
        <source>Electron rest mass, me</source>
        <translation>Massa em repouso do eletrão, me</translation>
    </message>
    <message>
        <source>q/me, qme</source>
        <translation>q/me, qme</translation>
    </message>
    <message>
        <source>Proton rest mass, mp</source>
        <translation>Massa em repouso do protão, mp</translation>
    </message>
    <message>
        <source>mp/me, mpme</source>
        <translation>mp/me, mpme</translation>
    </message>
    <message>
        <source>Fine structure constant</source>
        <translation>Constante de estrutura fina</translation>
    </message>
    <message>
        <source>Magnetic flux quantum</source>
        <translation>Quantum de fluxo magnético</translation>
    </message>
    <message>
        <source>Faraday constant, F</source>
        <translation>Constante de Faraday, F</translation>
    </message>
    <message>
        <source>Rydberg constant</source>
        <translation>Constante de Rydberg</translation>
    </message>
    <message>
        <source>Bohr radius, a0</source>
        <translation>Raio de Bohr, a0</translation>
    </message>
    <message>
        <source>Bohr magneton</source>
        <translation>Magnetão de Bohr</translation>
    </message>
    <message>
        <source>Nuclear magneton</source>
        <translation>Magnetão nuclear</translation>
    </message>
    <message>
        <source>Photon wavelength (ch/e)</source>
        <translation>Comprimento de onda do fotão (ch/e)</translation>
    </message>
    <message>
        <source>Photon frequency (e/h)</source>
        <translation>Frequência do fotão (e/h)</translation>
    </message>
    <message>
        <source>Compton wavelength</source>
        <translation>Comprimento de onda de Compton</translation>
    </message>
    <message>
        <source>Wien displacement constant, c3</source>
        <translation>Constante de deslocamento de Wien, c3</translation>
    </message>
    <message>
        <source>Dielectric constant</source>
        <translation>Constante dielétrica</translation>
    </message>
    <message>
        <source>SiO2 dielectric constant</source>
        <translation>Constante dielétrica do SiO2</translation>
    </message>
    <message>
        <source>Reference intensity, I0</source>
        <translation>Intensidade de referência, I0</translation>
    </message>
</context>
<context>
    <name>KeyMeaning</name>
    <message>
        <source>Digit 0</source>
        <translation>Algarismo 0</translation>
    </message>
    <message>
        <source>Digit 1</source>
        <translation>Algarismo 1</translation>
    </message>
    <message>
        <source>Digit 2</source>
        <translation>Algarismo 2</translation>
    </message>
    <message>
        <source>Digit 3</source>
        <translation>Algarismo 3</translation>
    </message>
    <message>
        <source>Digit 4</source>
        <translation>Algarismo 4</translation>
    </message>
    <message>
        <source>Digit 5</source>
        <translation>Algarismo 5</translation>
    </message>
    <message>
        <source>Digit 6</source>
        <translation>Algarismo 6</translation>
    </message>
    <message>
        <source>Digit 7</source>
        <translation>Algarismo 7</translation>
    </message>
    <message>
        <source>Digit 8</source>
        <translation>Algarismo 8</translation>
    </message>
    <message>
        <source>Digit 9</source>
        <translation>Algarismo 9</translation>
    </message>
    <message>
        <source>Hexadecimal digit A (10)</source>
        <translation>Algarismo hexadecimal A (10)</translation>
    </message>
    <message>
        <source>Hexadecimal digit B (11)</source>
        <translation>Algarismo hexadecimal B (11)</translation>
    </message>
    <message>
        <source>Hexadecimal digit C (12)</source>
        <translation>Algarismo hexadecimal C (12)</translation>
    </message>
    <message>
        <source>Hexadecimal digit D (13)</source>
        <translation>Algarismo hexadecimal D (13)</translation>
    </message>
    <message>
        <source>Hexadecimal digit E (14)</source>
        <translation>Algarismo hexadecimal E (14)</translation>
    </message>
    <message>
        <source>E (in an integer base)</source>
        <translation>E (numa base inteira)</translation>
    </message>
    <message>
        <source>Hexadecimal digit F (15)</source>
        <translation>Algarismo hexadecimal F (15)</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>Separador decimal</translation>
    </message>
    <message>
        <source>. or ,</source>
        <translation>. ou ,</translation>
    </message>
    <message>
        <source>Decimal point (second key)</source>
        <translation>Separador decimal (segunda tecla)</translation>
    </message>
    <message>
        <source>Enter exponent</source>
        <translation>Introduzir expoente</translation>
    </message>
    <message>
        <source>Change sign</source>
        <translation>Mudar sinal</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retrocesso</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Enter (RPN)</source>
        <translation>Enter (RPN)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Somar</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Subtrair</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplicar</translation>
    </message>
    <message>
        <source>* or X</source>
        <translation>* ou X</translation>
    </message>
    <message>
        <source>Divide</source>
        <translation>Dividir</translation>
    </message>
    <message>
        <source>Equals: complete the calculation</source>
        <translation>Igual: concluir o cálculo</translation>
    </message>
    <message>
        <source>= or Enter</source>
        <translation>= ou Enter</translation>
    </message>
    <message>
        <source>Shift: the keys&apos; second functions</source>
        <translation>Shift: as segundas funções das teclas</translation>
    </message>
    <message>
        <source>Show all digits, dates as numbers (toggle)</source>
        <translation>Mostrar todos os dígitos, datas como números (alternar)</translation>
    </message>
    <message>
        <source>Clear all: stack, registers and macro</source>
        <translation>Limpar tudo: pilha, registos e macro</translation>
    </message>
    <message>
        <source>Clear stack</source>
        <translation>Limpar a pilha</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Clear X</source>
        <translation>Limpar X</translation>
    </message>
    <message>
        <source>Clear all (second key)</source>
        <translation>Limpar tudo (segunda tecla)</translation>
    </message>
    <message>
        <source>Clear stack (second key)</source>
        <translation>Limpar a pilha (segunda tecla)</translation>
    </message>
    <message>
        <source>Clear X (second key)</source>
        <translation>Limpar X (segunda tecla)</translation>
    </message>
    <message>
        <source>Clear user, financial and statistical registers</source>
        <translation>Limpar os registos do utilizador, financeiros e estatísticos</translation>
    </message>
    <message>
        <source>Clear the financial registers</source>
        <translation>Limpar os registos financeiros</translation>
    </message>
    <message>
        <source>Clear the statistical sums</source>
        <translation>Limpar as somas estatísticas</translation>
    </message>
    <message>
        <source>Roll the stack down</source>
        <translation>Rodar a pilha para baixo</translation>
    </message>
    <message>
        <source>Roll the stack up</source>
        <translation>Rodar a pilha para cima</translation>
    </message>
    <message>
        <source>Drop X</source>
        <translation>Retirar X</translation>
    </message>
    <message>
        <source>Fill the stack with X</source>
        <translation>Encher a pilha com X</translation>
    </message>
    <message>
        <source>Exchange X and Y</source>
        <translation>Trocar X e Y</translation>
    </message>
    <message>
        <source>Store X in a register</source>
        <translation>Guardar X num registo</translation>
    </message>
    <message>
        <source>Last X</source>
        <translation>Último X</translation>
    </message>
    <message>
        <source>Recall a register</source>
        <translation>Recuperar um registo</translation>
    </message>
    <message>
        <source>Exchange X with a register</source>
        <translation>Trocar X com um registo</translation>
    </message>
    <message>
        <source>Open parenthesis</source>
        <translation>Abrir parêntese</translation>
    </message>
    <message>
        <source>Close parenthesis</source>
        <translation>Fechar parêntese</translation>
    </message>
    <message>
        <source>Percent of total: X as a percentage of Y</source>
        <translation>Percentagem do total: X em percentagem de Y</translation>
    </message>
    <message>
        <source>Percent change from Y to X</source>
        <translation>Variação percentual de Y para X</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Percentagem</translation>
    </message>
    <message>
        <source>Round X to the digits shown</source>
        <translation>Arredondar X aos dígitos mostrados</translation>
    </message>
    <message>
        <source>Integer part</source>
        <translation>Parte inteira</translation>
    </message>
    <message>
        <source>Absolute value</source>
        <translation>Valor absoluto</translation>
    </message>
    <message>
        <source>Square root</source>
        <translation>Raiz quadrada</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrado</translation>
    </message>
    <message>
        <source>Cube root</source>
        <translation>Raiz cúbica</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>Cubo</translation>
    </message>
    <message>
        <source>Power: Y raised to X</source>
        <translation>Potência: Y elevado a X</translation>
    </message>
    <message>
        <source>Reciprocal</source>
        <translation>Inverso</translation>
    </message>
    <message>
        <source>Fractional part</source>
        <translation>Parte fracionária</translation>
    </message>
    <message>
        <source>Remainder of Y divided by X</source>
        <translation>Resto de Y a dividir por X</translation>
    </message>
    <message>
        <source>Payments at the beginning or end of periods (toggle)</source>
        <translation>Prestações no início ou no fim dos períodos (alternar)</translation>
    </message>
    <message>
        <source>Number of payments</source>
        <translation>Número de prestações</translation>
    </message>
    <message>
        <source>Nominal annual interest rate, percent</source>
        <translation>Taxa de juro nominal anual, em percentagem</translation>
    </message>
    <message>
        <source>Present value</source>
        <translation>Valor atual</translation>
    </message>
    <message>
        <source>Payment per period</source>
        <translation>Prestação por período</translation>
    </message>
    <message>
        <source>Future value</source>
        <translation>Valor futuro</translation>
    </message>
    <message>
        <source>Payments per year</source>
        <translation>Prestações por ano</translation>
    </message>
    <message>
        <source>Nominal annual interest rate</source>
        <translation>Taxa de juro nominal anual</translation>
    </message>
    <message>
        <source>Effective annual interest rate</source>
        <translation>Taxa de juro efetiva anual</translation>
    </message>
    <message>
        <source>Years times payments per year, stored in N</source>
        <translation>Anos vezes prestações por ano, guardado em N</translation>
    </message>
    <message>
        <source>Divide by payments per year</source>
        <translation>Dividir pelas prestações por ano</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Custo</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preço</translation>
    </message>
    <message>
        <source>Margin, percent of price</source>
        <translation>Margem, percentagem do preço</translation>
    </message>
    <message>
        <source>Markup, percent of cost</source>
        <translation>Acréscimo, percentagem do custo</translation>
    </message>
    <message>
        <source>Amortize a range of payments</source>
        <translation>Amortizar uma série de prestações</translation>
    </message>
    <message>
        <source>Amortize the next range of payments</source>
        <translation>Amortizar a série de prestações seguinte</translation>
    </message>
    <message>
        <source>Cash flow: append X to the cash flows</source>
        <translation>Fluxo de caixa: acrescentar X aos fluxos</translation>
    </message>
    <message>
        <source>Times the last cash flow repeats</source>
        <translation>Repetições do último fluxo</translation>
    </message>
    <message>
        <source>Net present value</source>
        <translation>Valor atual líquido</translation>
    </message>
    <message>
        <source>Internal rate of return per year</source>
        <translation>Taxa interna de rendibilidade anual</translation>
    </message>
    <message>
        <source>Sine</source>
        <translation>Seno</translation>
    </message>
    <message>
        <source>Cosine</source>
        <translation>Cosseno</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Arc sine</source>
        <translation>Arco-seno</translation>
    </message>
    <message>
        <source>Arc cosine</source>
        <translation>Arco-cosseno</translation>
    </message>
    <message>
        <source>Arc tangent</source>
        <translation>Arco-tangente</translation>
    </message>
    <message>
        <source>Pi</source>
        <translation>Pi</translation>
    </message>
    <message>
        <source>Hyperbolic prefix for the next function</source>
        <translation>Prefixo hiperbólico para a função seguinte</translation>
    </message>
    <message>
        <source>Natural logarithm</source>
        <translation>Logaritmo natural</translation>
    </message>
    <message>
        <source>Common logarithm</source>
        <translation>Logaritmo decimal</translation>
    </message>
    <message>
        <source>Natural exponential</source>
        <translation>Exponencial</translation>
    </message>
    <message>
        <source>Power of ten</source>
        <translation>Potência de dez</translation>
    </message>
    <message>
        <source>Angles in degrees</source>
        <translation>Ângulos em graus</translation>
    </message>
    <message>
        <source>Angles in radians</source>
        <translation>Ângulos em radianos</translation>
    </message>
    <message>
        <source>Angles in grads</source>
        <translation>Ângulos em grados</translation>
    </message>
    <message>
        <source>Radians to degrees</source>
        <translation>Radianos para graus</translation>
    </message>
    <message>
        <source>Degrees to radians</source>
        <translation>Graus para radianos</translation>
    </message>
    <message>
        <source>Polar to rectangular</source>
        <translation>Polar para retangular</translation>
    </message>
    <message>
        <source>Rectangular to polar</source>
        <translation>Retangular para polar</translation>
    </message>
    <message>
        <source>Hours to hours.minutes-seconds (h.mmss)</source>
        <translation>Horas para horas.minutos-segundos (h.mmss)</translation>
    </message>
    <message>
        <source>Hours.minutes-seconds (h.mmss) to hours</source>
        <translation>Horas.minutos-segundos (h.mmss) para horas</translation>
    </message>
    <message>
        <source>Add the point (X, Y) to the sums</source>
        <translation>Acrescentar o ponto (X, Y) às somas</translation>
    </message>
    <message>
        <source>Remove the point (X, Y) from the sums</source>
        <translation>Retirar o ponto (X, Y) das somas</translation>
    </message>
    <message>
        <source>Sum of x</source>
        <translation>Soma dos x</translation>
    </message>
    <message>
        <source>Sum of x squared</source>
        <translation>Soma dos quadrados de x</translation>
    </message>
    <message>
        <source>Sum of y</source>
        <translation>Soma dos y</translation>
    </message>
    <message>
        <source>Sum of y squared</source>
        <translation>Soma dos quadrados de y</translation>
    </message>
    <message>
        <source>Sum of the products xy</source>
        <translation>Soma dos produtos xy</translation>
    </message>
    <message>
        <source>Number of points</source>
        <translation>Número de pontos</translation>
    </message>
    <message>
        <source>Mean of x</source>
        <translation>Média de x</translation>
    </message>
    <message>
        <source>Mean of x weighted by y</source>
        <translation>Média de x ponderada por y</translation>
    </message>
    <message>
        <source>Mean of y</source>
        <translation>Média de y</translation>
    </message>
    <message>
        <source>Estimated x for the y in X; r in Y</source>
        <translation>x estimado para o y em X; r em Y</translation>
    </message>
    <message>
        <source>Estimated y for the x in X; slope in Y</source>
        <translation>y estimado para o x em X; declive em Y</translation>
    </message>
    <message>
        <source>Random number</source>
        <translation>Número aleatório</translation>
    </message>
    <message>
        <source>Factorial</source>
        <translation>Fatorial</translation>
    </message>
    <message>
        <source>Logarithm of the gamma function</source>
        <translation>Logaritmo da função gama</translation>
    </message>
    <message>
        <source>Sample standard deviation</source>
        <translation>Desvio padrão da amostra</translation>
    </message>
    <message>
        <source>Population standard deviation</source>
        <translation>Desvio padrão da população</translation>
    </message>
    <message>
        <source>Combinations of X items from Y</source>
        <translation>Combinações de X elementos de Y</translation>
    </message>
    <message>
        <source>Permutations of X items from Y</source>
        <translation>Arranjos de X elementos de Y</translation>
    </message>
    <message>
        <source>Binary entry and display</source>
        <translation>Entrada e visualização binárias</translation>
    </message>
    <message>
        <source>Octal entry and display</source>
        <translation>Entrada e visualização octais</translation>
    </message>
    <message>
        <source>Decimal integer entry and display</source>
        <translation>Entrada e visualização de inteiros decimais</translation>
    </message>
    <message>
        <source>Hexadecimal entry and display</source>
        <translation>Entrada e visualização hexadecimais</translation>
    </message>
    <message>
        <source>Bitwise AND</source>
        <translation>E bit a bit</translation>
    </message>
    <message>
        <source>Bitwise OR</source>
        <translation>OU bit a bit</translation>
    </message>
    <message>
        <source>Bitwise exclusive OR</source>
        <translation>OU exclusivo bit a bit</translation>
    </message>
    <message>
        <source>Bitwise NOT</source>
        <translation>NÃO bit a bit</translation>
    </message>
    <message>
        <source>Shift Y left by X bits</source>
        <translation>Deslocar Y X bits para a esquerda</translation>
    </message>
    <message>
        <source>Shift Y right by X bits (logical)</source>
        <translation>Deslocar Y X bits para a direita (lógico)</translation>
    </message>
    <message>
        <source>Arithmetic shift right, keeping the sign</source>
        <translation>Deslocamento aritmético para a direita, mantendo o sinal</translation>
    </message>
    <message>
        <source>Rotate Y right by X bits</source>
        <translation>Rodar Y X bits para a direita</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Polegadas</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Pés</translation>
    </message>
    <message>
        <source>Miles</source>
        <translation>Milhas</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Metros</translation>
    </message>
    <message>
        <source>Square inches</source>
        <translation>Polegadas quadradas</translation>
    </message>
    <message>
        <source>Square feet</source>
        <translation>Pés quadrados</translation>
    </message>
    <message>
        <source>Square miles</source>
        <translation>Milhas quadradas</translation>
    </message>
    <message>
        <source>Square meters</source>
        <translation>Metros quadrados</translation>
    </message>
    <message>
        <source>Pounds</source>
        <translation>Libras</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>Onças</translation>
    </message>
    <message>
        <source>Kilograms</source>
        <translation>Quilogramas</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>Gramas</translation>
    </message>
    <message>
        <source>Inches per second</source>
        <translation>Polegadas por segundo</translation>
    </message>
    <message>
        <source>Feet per second</source>
        <translation>Pés por segundo</translation>
    </message>
    <message>
        <source>Meters per second</source>
        <translation>Metros por segundo</translation>
    </message>
    <message>
        <source>Miles per hour</source>
        <translation>Milhas por hora</translation>
    </message>
    <message>
        <source>Kilometers per hour</source>
        <translation>Quilómetros por hora</translation>
    </message>
    <message>
        <source>Centimeters per second</source>
        <translation>Centímetros por segundo</translation>
    </message>
    <message>
        <source>US gallons</source>
        <translation>Galões americanos</translation>
    </message>
    <message>
        <source>Milliliters</source>
        <translation>Mililitros</translation>
    </message>
    <message>
        <source>Liters</source>
        <translation>Litros</translation>
    </message>
    <message>
        <source>US fluid ounces</source>
        <translation>Onças líquidas americanas</translation>
    </message>
    <message>
        <source>Degrees Celsius</source>
        <translation>Graus Celsius</translation>
    </message>
    <message>
        <source>Degrees Fahrenheit</source>
        <translation>Graus Fahrenheit</translation>
    </message>
    <message>
        <source>X-th root of Y</source>
        <translation>Raiz de índice X de Y</translation>
    </message>
    <message>
        <source>8-bit unsigned integer</source>
        <translation>Inteiro de 8 bits sem sinal</translation>
    </message>
    <message>
        <source>8-bit signed integer</source>
        <translation>Inteiro de 8 bits com sinal</translation>
    </message>
    <message>
        <source>16-bit unsigned integer</source>
        <translation>Inteiro de 16 bits sem sinal</translation>
    </message>
    <message>
        <source>16-bit signed integer</source>
        <translation>Inteiro de 16 bits com sinal</translation>
    </message>
    <message>
        <source>32-bit unsigned integer</source>
        <translation>Inteiro de 32 bits sem sinal</translation>
    </message>
    <message>
        <source>32-bit signed integer</source>
        <translation>Inteiro de 32 bits com sinal</translation>
    </message>
    <message>
        <source>Standard number format</source>
        <translation>Formato numérico padrão</translation>
    </message>
    <message>
        <source>Scientific format: digits follow</source>
        <translation>Formato científico: seguem-se os dígitos</translation>
    </message>
    <message>
        <source>Engineering format: digits follow</source>
        <translation>Formato de engenharia: seguem-se os dígitos</translation>
    </message>
    <message>
        <source>Largest whole number not above X</source>
        <translation>Maior inteiro não superior a X</translation>
    </message>
    <message>
        <source>Smallest whole number not below X</source>
        <translation>Menor inteiro não inferior a X</translation>
    </message>
    <message>
        <source>Change sign of an integer</source>
        <translation>Mudar o sinal de um inteiro</translation>
    </message>
    <message>
        <source>X as an integer of the default format</source>
        <translation>X como inteiro do formato predefinido</translation>
    </message>
    <message>
        <source>Integer add</source>
        <translation>Soma inteira</translation>
    </message>
    <message>
        <source>Integer subtract</source>
        <translation>Subtração inteira</translation>
    </message>
    <message>
        <source>Integer multiply</source>
        <translation>Multiplicação inteira</translation>
    </message>
    <message>
        <source>Integer divide</source>
        <translation>Divisão inteira</translation>
    </message>
    <message>
        <source>Fixed format: digits follow</source>
        <translation>Formato fixo: seguem-se os dígitos</translation>
    </message>
    <message>
        <source>Clear the date registers and duration settings</source>
        <translation>Limpar os registos de data e as definições de duração</translation>
    </message>
    <message>
        <source>The current date and time</source>
        <translation>A data e hora atuais</translation>
    </message>
    <message>
        <source>Date: X typed as Y.MMDD becomes a date</source>
        <translation>Data: X escrito como A.MMDD passa a ser uma data</translation>
    </message>
    <message>
        <source>Time: X typed as H.MMSS becomes a clock time</source>
        <translation>Hora: X escrito como H.MMSS passa a ser uma hora</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Anos</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Meses</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Semanas</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dias</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Horas</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Imagens</translation>
    </message>
    <message>
        <source>Hours.minutes-seconds (h.mmss) to frames</source>
        <translation>Horas.minutos-segundos (h.mmss) para imagens</translation>
    </message>
    <message>
        <source>Days per year</source>
        <translation>Dias por ano</translation>
    </message>
    <message>
        <source>Days per month</source>
        <translation>Dias por mês</translation>
    </message>
    <message>
        <source>Days per week</source>
        <translation>Dias por semana</translation>
    </message>
    <message>
        <source>Hours per day</source>
        <translation>Horas por dia</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Imagens por segundo</translation>
    </message>
    <message>
        <source>Date part of a date and time</source>
        <translation>Parte de data de uma data e hora</translation>
    </message>
    <message>
        <source>Time part of a date and time</source>
        <translation>Parte de hora de uma data e hora</translation>
    </message>
    <message>
        <source>Fraction of a duration in the next smaller unit</source>
        <translation>Fração de uma duração na unidade menor seguinte</translation>
    </message>
    <message>
        <source>Enter (second key)</source>
        <translation>Enter (segunda tecla)</translation>
    </message>
    <message>
        <source>Rotate the three lowest levels</source>
        <translation>Rodar os três níveis inferiores</translation>
    </message>
    <message>
        <source>Over: a copy of Y onto the stack</source>
        <translation>Over: uma cópia de Y para a pilha</translation>
    </message>
    <message>
        <source>Simple input: in the order entered</source>
        <translation>Entrada simples: pela ordem introduzida</translation>
    </message>
    <message>
        <source>Precedence input: × and ÷ before + and −</source>
        <translation>Entrada com precedência: × e ÷ antes de + e −</translation>
    </message>
    <message>
        <source>RPN input: operands first</source>
        <translation>Entrada RPN: primeiro os operandos</translation>
    </message>
    <message>
        <source>Record a macro</source>
        <translation>Gravar uma macro</translation>
    </message>
    <message>
        <source>Play the macro</source>
        <translation>Reproduzir a macro</translation>
    </message>
    <message>
        <source>Pause the macro for input</source>
        <translation>Pausar a macro para uma entrada</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Parar a gravação</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>Centímetros</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Milímetros</translation>
    </message>
    <message>
        <source>Yards</source>
        <translation>Jardas</translation>
    </message>
    <message>
        <source>Kilometers</source>
        <translation>Quilómetros</translation>
    </message>
    <message>
        <source>Nautical miles</source>
        <translation>Milhas náuticas</translation>
    </message>
    <message>
        <source>Square millimeters</source>
        <translation>Milímetros quadrados</translation>
    </message>
    <message>
        <source>Square centimeters</source>
        <translation>Centímetros quadrados</translation>
    </message>
    <message>
        <source>Square kilometers</source>
        <translation>Quilómetros quadrados</translation>
    </message>
    <message>
        <source>Square yards</source>
        <translation>Jardas quadradas</translation>
    </message>
    <message>
        <source>Acres</source>
        <translation>Acres</translation>
    </message>
    <message>
        <source>Short tons (2,000 pounds)</source>
        <translation>Toneladas curtas (2000 libras)</translation>
    </message>
    <message>
        <source>Milligrams</source>
        <translation>Miligramas</translation>
    </message>
    <message>
        <source>Knots</source>
        <translation>Nós</translation>
    </message>
    <message>
        <source>Cubic meters</source>
        <translation>Metros cúbicos</translation>
    </message>
    <message>
        <source>Cubic centimeters</source>
        <translation>Centímetros cúbicos</translation>
    </message>
    <message>
        <source>Cubic yards</source>
        <translation>Jardas cúbicas</translation>
    </message>
    <message>
        <source>Cubic feet</source>
        <translation>Pés cúbicos</translation>
    </message>
    <message>
        <source>Cubic inches</source>
        <translation>Polegadas cúbicas</translation>
    </message>
    <message>
        <source>US quarts</source>
        <translation>Quartos americanos</translation>
    </message>
    <message>
        <source>US pints</source>
        <translation>Pintas americanas</translation>
    </message>
    <message>
        <source>US cups</source>
        <translation>Chávenas americanas</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>Colheres de sopa</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>Colheres de chá</translation>
    </message>
    <message>
        <source>Imperial gallons</source>
        <translation>Galões imperiais</translation>
    </message>
    <message>
        <source>Imperial fluid ounces</source>
        <translation>Onças líquidas imperiais</translation>
    </message>
    <message>
        <source>Amortize a range of payments (second key)</source>
        <translation>Amortizar uma série de prestações (segunda tecla)</translation>
    </message>
    <message>
        <source>Recall one of 100 registers</source>
        <translation>Recuperar um de 100 registos</translation>
    </message>
    <message>
        <source>Exchange X with one of 100 registers</source>
        <translation>Trocar X com um de 100 registos</translation>
    </message>
    <message>
        <source>Store X in one of 100 registers</source>
        <translation>Guardar X num de 100 registos</translation>
    </message>
    <message>
        <source>First shift</source>
        <translation>Primeiro Shift</translation>
    </message>
    <message>
        <source>Second shift</source>
        <translation>Segundo Shift</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>No Function</source>
        <translation>Sem função</translation>
    </message>
    <message>
        <source>The Keyboard dialog can be used to assign a function to this button.</source>
        <translation>O diálogo Teclado permite atribuir uma função a esta tecla.</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Limpar tudo</translation>
    </message>
    <message>
        <source>This operation will clear the operating stack and all user, financial, statistical, and date registers, and the keyboard macro.</source>
        <translation>Esta operação limpa a pilha de operações, todos os registos do utilizador, financeiros, estatísticos e de data, e a macro de teclado.</translation>
    </message>
    <message>
        <source>Nothing to Undo</source>
        <translation>Nada para desfazer</translation>
    </message>
    <message>
        <source>There are no operations to be undone.</source>
        <translation>Não há operações para desfazer.</translation>
    </message>
    <message>
        <source>Nothing to Redo</source>
        <translation>Nada para refazer</translation>
    </message>
    <message>
        <source>There are no undo actions to be redone.</source>
        <translation>Não há ações desfeitas para refazer.</translation>
    </message>
    <message>
        <source>No Macro</source>
        <translation>Sem macro</translation>
    </message>
    <message>
        <source>A macro must be recorded before it can be played back.</source>
        <translation>É preciso gravar uma macro antes de a reproduzir.</translation>
    </message>
    <message>
        <source>Macro Length Exceeded</source>
        <translation>Macro demasiado longa</translation>
    </message>
    <message>
        <source>The macro length has been exceeded and the last key could not be recorded.</source>
        <translation>O comprimento máximo da macro foi excedido e a última tecla não pôde ser gravada.</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>Não é um número</translation>
    </message>
    <message>
        <source>Out of range</source>
        <translation>Fora do intervalo</translation>
    </message>
    <message>
        <source>Must be above 0</source>
        <translation>Tem de ser maior que 0</translation>
    </message>
    <message>
        <source>A whole number from 1 to 32767</source>
        <translation>Um número inteiro de 1 a 32767</translation>
    </message>
    <message>
        <source>A whole number from 1 up</source>
        <translation>Um número inteiro a partir de 1</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>cannot look at %1: %2</source>
        <translation>não é possível examinar %1: %2</translation>
    </message>
    <message>
        <source>cannot create %1: its folder does not exist</source>
        <translation>não é possível criar %1: a pasta não existe</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>não é possível criar %1: %2</translation>
    </message>
    <message>
        <source>cannot follow the link %1: %2</source>
        <translation>não é possível seguir a ligação %1: %2</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 não é um ficheiro normal</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>não é possível abrir %1: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>%1 is not a Brinto database</source>
        <translation>%1 não é uma base de dados do Brinto</translation>
    </message>
    <message>
        <source>%1 is locked by another program; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 está bloqueado por outro programa; a calculadora funciona em memória e nada será guardado</translation>
    </message>
    <message>
        <source>%1 is not a Brinto database; it was left as it is; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 não é uma base de dados do Brinto; foi deixado como estava; a calculadora funciona em memória e nada será guardado</translation>
    </message>
    <message>
        <source>%1; the calculator runs in memory and nothing will be saved</source>
        <translation>%1; a calculadora funciona em memória e nada será guardado</translation>
    </message>
    <message>
        <source>%1 is damaged (%2) and cannot be moved aside; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 está danificado (%2) e não pode ser posto de parte; a calculadora funciona em memória e nada será guardado</translation>
    </message>
    <message>
        <source>%1 was damaged (%2); kept it as %3; starting on defaults</source>
        <translation>%1 estava danificado (%2); guardado como %3; a iniciar com os valores predefinidos</translation>
    </message>
    <message>
        <source>%1 was damaged (%2); kept it as %3; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 estava danificado (%2); guardado como %3; a calculadora funciona em memória e nada será guardado</translation>
    </message>
    <message>
        <source>cannot save the calculator to %1 (%2); the file keeps its last save</source>
        <translation>não é possível guardar a calculadora em %1 (%2); o ficheiro mantém o último estado guardado</translation>
    </message>
    <message>
        <source>cannot create the folder %1: %2; the calculator runs in memory and nothing will be saved</source>
        <translation>não é possível criar a pasta %1: %2; a calculadora funciona em memória e nada será guardado</translation>
    </message>
    <message>
        <source>legacy settings not imported: %1</source>
        <translation>definições antigas não importadas: %1</translation>
    </message>
    <message>
        <source>cannot load the calculator from %1 (%2); the calculator runs in memory and nothing will be saved</source>
        <translation>não é possível carregar a calculadora de %1 (%2); a calculadora funciona em memória e nada será guardado</translation>
    </message>
    <message>
        <source>%1 is read-only; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 é só de leitura; a calculadora funciona em memória e nada será guardado</translation>
    </message>
    <message>
        <source>%1 is locked by another program (%2)</source>
        <translation>%1 está bloqueado por outro programa (%2)</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Default Color</source>
        <translation>Cor predefinida</translation>
    </message>
    <message>
        <source>Default Grayscale</source>
        <translation>Cinzentos predefinido</translation>
    </message>
    <message>
        <source>Default B&amp;W</source>
        <translation>Preto e branco predefinido</translation>
    </message>
    <message>
        <source>Original Color</source>
        <translation>Cor original</translation>
    </message>
    <message>
        <source>Original Grayscale</source>
        <translation>Cinzentos original</translation>
    </message>
    <message>
        <source>Original B&amp;W</source>
        <translation>Preto e branco original</translation>
    </message>
    <message>
        <source>Light Background</source>
        <translation>Fundo claro</translation>
    </message>
    <message>
        <source>Dark Background</source>
        <translation>Fundo escuro</translation>
    </message>
</context>
<context>
    <name>Ui</name>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visor</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>Nível %1</translation>
    </message>
    <message>
        <source>Choose an input method to determine how Brinto performs calculations:

- Simple specifies an infix order where the operations are performed in the order they are entered, for example, entering 2 + 3 * 5 = yields the result of 25

- Precedence also specifies an infix order where binary operations are performed before multiplication and division which are performed before addition and subtraction reducing the need for using parentheses, for example, 2 + 3 * 5 = yields the result of 17

- RPN (Reverse Polish Notation) specifies a postfix order where the operands are entered before the operation, for example, 2 Enter 3 + 5 * yields 25 and 2 Enter 3 Enter 5 * + yields 17

- The input method can be specified  at any time in the Preferences dialog

- See the Comparison of Input Methods section of the User Guide for more details</source>
        <translation>Escolha um método de entrada que determina como o Brinto calcula:

- Simples é uma ordem infixa em que as operações são feitas pela ordem em que são introduzidas; por exemplo, 2 + 3 * 5 = dá 25

- Precedência é também uma ordem infixa em que as operações binárias são feitas antes da multiplicação e da divisão, e estas antes da adição e da subtração, o que reduz a necessidade de parênteses; por exemplo, 2 + 3 * 5 = dá 17

- RPN (notação polaca inversa) é uma ordem pós-fixa em que os operandos são introduzidos antes da operação; por exemplo, 2 Enter 3 + 5 * dá 25 e 2 Enter 3 Enter 5 * + dá 17

- O método de entrada pode ser mudado a qualquer momento nas Preferências

- Veja a secção «Comparison of Input Methods» do guia do utilizador (em inglês) para mais pormenores</translation>
    </message>
    <message>
        <source>Input Method</source>
        <translation>Método de entrada</translation>
    </message>
    <message>
        <source>&amp;Input:</source>
        <translation>&amp;Entrada:</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>Simples</translation>
    </message>
    <message>
        <source>Precedence</source>
        <translation>Precedência</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Find Key</source>
        <translation>Procurar tecla</translation>
    </message>
    <message>
        <source>&amp;Key name:</source>
        <translation>Nome da &amp;tecla:</translation>
    </message>
    <message>
        <source>sqrt, x^2, pv, Square root...</source>
        <translation>sqrt, x^2, pv, Raiz quadrada...</translation>
    </message>
    <message>
        <source>&amp;Matching keys:</source>
        <translation>Teclas &amp;correspondentes:</translation>
    </message>
    <message>
        <source>&amp;Press</source>
        <translation>&amp;Premir</translation>
    </message>
    <message>
        <source>Type the name of a key.</source>
        <translation>Escreva o nome de uma tecla.</translation>
    </message>
    <message>
        <source>No key is called &quot;%1&quot;.</source>
        <translation>Nenhuma tecla se chama «%1».</translation>
    </message>
    <message>
        <source>No function</source>
        <translation>Sem função</translation>
    </message>
    <message>
        <source> (key: %1)</source>
        <translation> (tecla: %1)</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Basic</source>
        <translation>&amp;Básico</translation>
    </message>
    <message>
        <source>&amp;Advanced</source>
        <translation>&amp;Avançado</translation>
    </message>
    <message>
        <source>&amp;Stack...</source>
        <translation>&amp;Pilha...</translation>
    </message>
    <message>
        <source>&amp;User Registers...</source>
        <translation>&amp;Registos do utilizador...</translation>
    </message>
    <message>
        <source>&amp;Constants...</source>
        <translation>&amp;Constantes...</translation>
    </message>
    <message>
        <source>&amp;TVM...</source>
        <translation>&amp;Valor temporal (TVM)...</translation>
    </message>
    <message>
        <source>Amorti&amp;zation...</source>
        <translation>A&amp;mortização...</translation>
    </message>
    <message>
        <source>Cash &amp;Flow...</source>
        <translation>&amp;Fluxo de caixa...</translation>
    </message>
    <message>
        <source>Stat&amp;istical...</source>
        <translation>Es&amp;tatística...</translation>
    </message>
    <message>
        <source>Enter &amp;Date...</source>
        <translation>Introduzir &amp;data...</translation>
    </message>
    <message>
        <source>Enter Ti&amp;me...</source>
        <translation>Introduzir &amp;hora...</translation>
    </message>
    <message>
        <source>Du&amp;rations...</source>
        <translation>D&amp;urações...</translation>
    </message>
    <message>
        <source>&amp;History Tape</source>
        <translation>F&amp;ita de cálculo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>&amp;Find Key...</source>
        <translation>&amp;Procurar tecla...</translation>
    </message>
    <message>
        <source>S&amp;hift</source>
        <translation>&amp;Shift</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opções</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Preferências...</translation>
    </message>
    <message>
        <source>&amp;Keyboard...</source>
        <translation>&amp;Teclado...</translation>
    </message>
    <message>
        <source>&amp;About Brinto...</source>
        <translation>&amp;Acerca do Brinto...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Não guardado</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Não guardado: %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Financial</source>
        <translation>Financeiro</translation>
    </message>
    <message>
        <source>Scientific</source>
        <translation>Científico</translation>
    </message>
    <message>
        <source>Statistical</source>
        <translation>Estatística</translation>
    </message>
    <message>
        <source>Programmer</source>
        <translation>Programador</translation>
    </message>
    <message>
        <source>Conversion 1</source>
        <translation>Conversão 1</translation>
    </message>
    <message>
        <source>Conversion 2</source>
        <translation>Conversão 2</translation>
    </message>
    <message>
        <source>Date &amp;&amp; Time</source>
        <translation>Data &amp;&amp; hora</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilizador</translation>
    </message>
    <message>
        <source>Gen</source>
        <translation>Ger</translation>
    </message>
    <message>
        <source>Fin</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Sci</source>
        <translation>Cien</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>Est</translation>
    </message>
    <message>
        <source>Prog</source>
        <translation>Prog</translation>
    </message>
    <message>
        <source>Conv 1</source>
        <translation>Conv 1</translation>
    </message>
    <message>
        <source>Conv 2</source>
        <translation>Conv 2</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Conv
1</source>
        <translation>Conv
1</translation>
    </message>
    <message>
        <source>Conv
2</source>
        <translation>Conv
2</translation>
    </message>
    <message>
        <source>The calculator could not be saved.</source>
        <translation>Não foi possível guardar a calculadora.</translation>
    </message>
    <message>
        <source>Quit Without Saving</source>
        <translation>Sair sem guardar</translation>
    </message>
    <message>
        <source>History Tape</source>
        <translation>Fita de cálculo</translation>
    </message>
    <message>
        <source>Tape lines</source>
        <translation>Linhas da fita</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Double click or Return recalls a result into X; Ctrl+C copies it</source>
        <translation>Duplo clique ou Enter recupera um resultado para X; Ctrl+C copia-o</translation>
    </message>
    <message>
        <source>&amp;Recall</source>
        <translation>&amp;Recuperar</translation>
    </message>
    <message>
        <source>Recall the selected result into X</source>
        <translation>Recuperar o resultado escolhido para X</translation>
    </message>
    <message>
        <source>Copy the selected result</source>
        <translation>Copiar o resultado escolhido</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Guardar como...</translation>
    </message>
    <message>
        <source>Save the tape as text or CSV</source>
        <translation>Guardar a fita como texto ou CSV</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Limpar</translation>
    </message>
    <message>
        <source>Clear the tape</source>
        <translation>Limpar a fita</translation>
    </message>
    <message>
        <source>The tape could not be saved to %1: %2</source>
        <translation>Não foi possível guardar a fita em %1: %2</translation>
    </message>
    <message>
        <source>Save Tape</source>
        <translation>Guardar fita</translation>
    </message>
    <message>
        <source>Text (*.txt);;CSV (*.csv)</source>
        <translation>Texto (*.txt);;CSV (*.csv)</translation>
    </message>
    <message>
        <source>Color Chooser</source>
        <translation>Seletor de cor</translation>
    </message>
    <message>
        <source>Red:</source>
        <translation>Vermelho:</translation>
    </message>
    <message>
        <source>Green:</source>
        <translation>Verde:</translation>
    </message>
    <message>
        <source>Blue:</source>
        <translation>Azul:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Customize Colors</source>
        <translation>Personalizar cores</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fundo</translation>
    </message>
    <message>
        <source>Standard:</source>
        <translation>Padrão:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Número:</translation>
    </message>
    <message>
        <source>Register:</source>
        <translation>Registo:</translation>
    </message>
    <message>
        <source>Clear:</source>
        <translation>Limpeza:</translation>
    </message>
    <message>
        <source>%1 text color</source>
        <translation>Cor do texto %1</translation>
    </message>
    <message>
        <source>%1 background color</source>
        <translation>Cor de fundo %1</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefinido</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>Constantes</translation>
    </message>
    <message>
        <source>Days per year (dpy):</source>
        <translation>Dias por ano (dpy):</translation>
    </message>
    <message>
        <source>Days per month (dpm):</source>
        <translation>Dias por mês (dpm):</translation>
    </message>
    <message>
        <source>Days per week (dpw):</source>
        <translation>Dias por semana (dpw):</translation>
    </message>
    <message>
        <source>Hours per day (hpd):</source>
        <translation>Horas por dia (hpd):</translation>
    </message>
    <message>
        <source>Frames per second (fps):</source>
        <translation>Imagens por segundo (fps):</translation>
    </message>
    <message>
        <source>Enter Date</source>
        <translation>Introduzir data</translation>
    </message>
    <message>
        <source>Enter Time</source>
        <translation>Introduzir hora</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Tens of minutes</source>
        <translation>Dezenas de minutos</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>&amp;Hour:</source>
        <translation>&amp;Hora:</translation>
    </message>
    <message>
        <source>&amp;Minute:</source>
        <translation>&amp;Minuto:</translation>
    </message>
    <message>
        <source>AM</source>
        <translation>AM</translation>
    </message>
    <message>
        <source>PM</source>
        <translation>PM</translation>
    </message>
    <message>
        <source>Durations</source>
        <translation>Durações</translation>
    </message>
    <message>
        <source>About Brinto</source>
        <translation>Acerca do Brinto</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>The user guide is in English.</source>
        <translation>O guia do utilizador está em inglês.</translation>
    </message>
    <message>
        <source>No Cash Flow Entries</source>
        <translation>Sem fluxos de caixa</translation>
    </message>
    <message>
        <source>There are no cash flow entries to display.</source>
        <translation>Não há fluxos de caixa para mostrar.</translation>
    </message>
    <message>
        <source>&lt;h2&gt;User guide missing&lt;/h2&gt;&lt;p&gt;The user guide was not built into this copy of Brinto, so help cannot be shown.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Guia do utilizador em falta&lt;/h2&gt;&lt;p&gt;O guia do utilizador não foi incluído nesta cópia do Brinto, por isso a ajuda não pode ser mostrada.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Brinto Help</source>
        <translation>Ajuda do Brinto</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>Tecla %1: %2</translation>
    </message>
    <message>
        <source>no function</source>
        <translation>sem função</translation>
    </message>
    <message>
        <source>Customize Keyboard</source>
        <translation>Personalizar teclado</translation>
    </message>
    <message>
        <source>User Keys:</source>
        <translation>Teclas do utilizador:</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Inteiro</translation>
    </message>
    <message>
        <source>Shifted</source>
        <translation>Com Shift</translation>
    </message>
    <message>
        <source>Available Keys:</source>
        <translation>Teclas disponíveis:</translation>
    </message>
    <message>
        <source>Available keyboard</source>
        <translation>Teclado disponível</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Amortization chart</source>
        <translation>Gráfico de amortização</translation>
    </message>
    <message>
        <source>Balance after each payment; interest and principal by year</source>
        <translation>Saldo após cada prestação; juros e capital por ano</translation>
    </message>
    <message>
        <source>Balance after each payment; interest and principal of each payment</source>
        <translation>Saldo após cada prestação; juros e capital de cada prestação</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Prestação</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Interest</source>
        <translation>Juros</translation>
    </message>
    <message>
        <source>Principal</source>
        <translation>Capital</translation>
    </message>
    <message>
        <source>(by year)</source>
        <translation>(por ano)</translation>
    </message>
    <message>
        <source>(by payment)</source>
        <translation>(por prestação)</translation>
    </message>
    <message>
        <source>Cash-flow diagram</source>
        <translation>Diagrama de fluxos de caixa</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fixo</translation>
    </message>
    <message>
        <source>Engineering</source>
        <translation>Engenharia</translation>
    </message>
    <message>
        <source>RPN</source>
        <translation>RPN</translation>
    </message>
    <message>
        <source>8-bit unsigned</source>
        <translation>8 bits sem sinal</translation>
    </message>
    <message>
        <source>8-bit signed</source>
        <translation>8 bits com sinal</translation>
    </message>
    <message>
        <source>16-bit unsigned</source>
        <translation>16 bits sem sinal</translation>
    </message>
    <message>
        <source>16-bit signed</source>
        <translation>16 bits com sinal</translation>
    </message>
    <message>
        <source>32-bit unsigned</source>
        <translation>32 bits sem sinal</translation>
    </message>
    <message>
        <source>32-bit signed</source>
        <translation>32 bits com sinal</translation>
    </message>
    <message>
        <source>Sticky</source>
        <translation>Persistente</translation>
    </message>
    <message>
        <source>Locking</source>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Não fazer nada</translation>
    </message>
    <message>
        <source>Shift keyboard</source>
        <translation>Mudar teclado</translation>
    </message>
    <message>
        <source>Repeat last key</source>
        <translation>Repetir a última tecla</translation>
    </message>
    <message>
        <source>Open last form</source>
        <translation>Abrir o último formulário</translation>
    </message>
    <message>
        <source>Play macro</source>
        <translation>Reproduzir macro</translation>
    </message>
    <message>
        <source>100 Registers</source>
        <translation>100 registos</translation>
    </message>
    <message>
        <source>Long Date</source>
        <translation>Data longa</translation>
    </message>
    <message>
        <source>Backspace Drops</source>
        <translation>Retrocesso remove X</translation>
    </message>
    <message>
        <source>Comma Radix</source>
        <translation>Vírgula decimal</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Digits:</source>
        <translation>Dígitos:</translation>
    </message>
    <message>
        <source>How many digits the number format shows; All: every digit</source>
        <translation>Quantos dígitos o formato mostra; Todos: cada dígito</translation>
    </message>
    <message>
        <source>Input:</source>
        <translation>Entrada:</translation>
    </message>
    <message>
        <source>Stack:</source>
        <translation>Pilha:</translation>
    </message>
    <message>
        <source>How many levels the operating stack has</source>
        <translation>Quantos níveis tem a pilha de operações</translation>
    </message>
    <message>
        <source>Integer:</source>
        <translation>Inteiro:</translation>
    </message>
    <message>
        <source>Shift:</source>
        <translation>Shift:</translation>
    </message>
    <message>
        <source>Action:</source>
        <translation>Ação:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pilha</translation>
    </message>
    <message>
        <source>User Registers</source>
        <translation>Registos do utilizador</translation>
    </message>
    <message>
        <source>TVM</source>
        <translation>Valor temporal (TVM)</translation>
    </message>
    <message>
        <source>Amortization</source>
        <translation>Amortização</translation>
    </message>
    <message>
        <source>Cash Flow</source>
        <translation>Fluxo de caixa</translation>
    </message>
    <message>
        <source>Basic also</source>
        <translation>Também básico</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Pequena</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Média</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Calculadora</translation>
    </message>
    <message>
        <source>Quick Switch</source>
        <translation>Troca rápida</translation>
    </message>
    <message>
        <source>Colors...</source>
        <translation>Cores...</translation>
    </message>
    <message>
        <source>Tap:</source>
        <translation>Toque:</translation>
    </message>
    <message>
        <source>Theme:</source>
        <translation>Tema:</translation>
    </message>
    <message>
        <source>Lines:</source>
        <translation>Linhas:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Tipo de letra:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Margem:</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Acima</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>Dentro</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Fixas</translation>
    </message>
    <message>
        <source>Swapped</source>
        <translation>Trocado</translation>
    </message>
    <message>
        <source>Zoomed</source>
        <translation>Ampliadas</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Primeiro plano</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Forte</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Muito forte</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Mostrar:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamanho:</translation>
    </message>
    <message>
        <source>Keys:</source>
        <translation>Teclas:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Cor:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Ativa:</translation>
    </message>
    <message>
        <source>Shadow:</source>
        <translation>Sombra:</translation>
    </message>
    <message>
        <source>Time Value of Money</source>
        <translation>Valor temporal do dinheiro</translation>
    </message>
    <message>
        <source>Statistical Registers</source>
        <translation>Registos estatísticos</translation>
    </message>
    <message>
        <source>Cash Flow Entries</source>
        <translation>Fluxos de caixa</translation>
    </message>
    <message>
        <source>%1: %2 unchanged</source>
        <translation>%1: %2 inalterado</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montante</translation>
    </message>
    <message>
        <source>Schedule...</source>
        <translation>Plano...</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Resolver</translation>
    </message>
    <message>
        <source>Solve %1</source>
        <translation>Resolver %1</translation>
    </message>
    <message>
        <source>Amortization Schedule</source>
        <translation>Plano de amortização</translation>
    </message>
    <message>
        <source>Payments</source>
        <translation>Prestações</translation>
    </message>
    <message>
        <source>Int</source>
        <translation>Jur</translation>
    </message>
    <message>
        <source>Prin</source>
        <translation>Cap</translation>
    </message>
    <message>
        <source>Bal</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation>Exportar CSV...</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Listed up to payment %1 of %2: the amortization keys reach no further.</source>
        <translation>Listado até à prestação %1 de %2: as teclas de amortização não vão mais longe.</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>Exportar CSV</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>Ficheiros CSV (*.csv)</translation>
    </message>
    <message>
        <source>The schedule could not be written to %1.</source>
        <translation>Não foi possível escrever o plano em %1.</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Data &amp; hora</translation>
    </message>
    <message>
        <source>Stack levels</source>
        <translation>Níveis da pilha</translation>
    </message>
    <message>
        <source>Try again, or quit without saving what changed since the last save?</source>
        <translation>Tentar de novo, ou sair sem guardar o que mudou desde a última gravação?</translation>
    </message>
    <message>
        <source>No payments to chart</source>
        <translation>Sem prestações para representar</translation>
    </message>
    <message>
        <source>Balance stays at %1 over 1 payment</source>
        <translation>O saldo mantém-se em %1 ao longo de 1 prestação</translation>
    </message>
    <message>
        <source>Balance stays at %1 over %2 payments</source>
        <translation>O saldo mantém-se em %1 ao longo de %2 prestações</translation>
    </message>
    <message>
        <source>Balance falls from %1 to %2 over 1 payment</source>
        <translation>O saldo desce de %1 para %2 em 1 prestação</translation>
    </message>
    <message>
        <source>Balance falls from %1 to %2 over %3 payments</source>
        <translation>O saldo desce de %1 para %2 em %3 prestações</translation>
    </message>
    <message>
        <source>Balance grows from %1 to %2 over 1 payment</source>
        <translation>O saldo sobe de %1 para %2 em 1 prestação</translation>
    </message>
    <message>
        <source>Balance grows from %1 to %2 over %3 payments</source>
        <translation>O saldo sobe de %1 para %2 em %3 prestações</translation>
    </message>
    <message>
        <source>Cash flows at period 0: %1 paid, %2 received</source>
        <translation>Fluxos no período 0: %1 pagos, %2 recebidos</translation>
    </message>
    <message>
        <source>Cash flows over periods 0 to %1: %2 paid, %3 received</source>
        <translation>Fluxos nos períodos 0 a %1: %2 pagos, %3 recebidos</translation>
    </message>
</context>
</TS>
