<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
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
        <translation>Volumen molar, Vm</translation>
    </message>
    <message>
        <source>Universal gas constant, R</source>
        <translation>Constante universal de los gases, R</translation>
    </message>
    <message>
        <source>Standard temperature, StdT</source>
        <translation>Temperatura normal, StdT</translation>
    </message>
    <message>
        <source>Standard pressure, StdP</source>
        <translation>Presión normal, StdP</translation>
    </message>
    <message>
        <source>Stefan-Boltzmann constant</source>
        <translation>Constante de Stefan-Boltzmann</translation>
    </message>
    <message>
        <source>Speed of light in vacuum, c</source>
        <translation>Velocidad de la luz en el vacío, c</translation>
    </message>
    <message>
        <source>Permittivity of vacuum</source>
        <translation>Permitividad del vacío</translation>
    </message>
    <message>
        <source>Permeability of vacuum</source>
        <translation>Permeabilidad del vacío</translation>
    </message>
    <message>
        <source>Acceleration of gravity, g</source>
        <translation>Aceleración de la gravedad, g</translation>
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
        <translation>Constante de Planck reducida, hbar</translation>
    </message>
    <message>
        <source>Electron charge, q</source>
        <translation>Carga del electrón, q</translation>
    </message>
    <message>
        <source>Electron rest mass, me</source>
        <translation>Masa en reposo del electrón, me</translation>
    </message>
    <message>
        <source>q/me, qme</source>
        <translation>q/me, qme</translation>
    </message>
    <message>
        <source>Proton rest mass, mp</source>
        <translation>Masa en reposo del protón, mp</translation>
    </message>
    <message>
        <source>mp/me, mpme</source>
        <translation>mp/me, mpme</translation>
    </message>
    <message>
        <source>Fine structure constant</source>
        <translation>Constante de estructura fina</translation>
    </message>
    <message>
        <source>Magnetic flux quantum</source>
        <translation>Cuanto de flujo magnético</translation>
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
        <translation>Radio de Bohr, a0</translation>
    </message>
    <message>
        <source>Bohr magneton</source>
        <translation>Magnetón de Bohr</translation>
    </message>
    <message>
        <source>Nuclear magneton</source>
        <translation>Magnetón nuclear</translation>
    </message>
    <message>
        <source>Photon wavelength (ch/e)</source>
        <translation>Longitud de onda del fotón (ch/e)</translation>
    </message>
    <message>
        <source>Photon frequency (e/h)</source>
        <translation>Frecuencia del fotón (e/h)</translation>
    </message>
    <message>
        <source>Compton wavelength</source>
        <translation>Longitud de onda de Compton</translation>
    </message>
    <message>
        <source>Wien displacement constant, c3</source>
        <translation>Constante de desplazamiento de Wien, c3</translation>
    </message>
    <message>
        <source>Dielectric constant</source>
        <translation>Constante dieléctrica</translation>
    </message>
    <message>
        <source>SiO2 dielectric constant</source>
        <translation>Constante dieléctrica del SiO2</translation>
    </message>
    <message>
        <source>Reference intensity, I0</source>
        <translation>Intensidad de referencia, I0</translation>
    </message>
</context>
<context>
    <name>KeyMeaning</name>
    <message>
        <source>Digit 0</source>
        <translation>Dígito 0</translation>
    </message>
    <message>
        <source>Digit 1</source>
        <translation>Dígito 1</translation>
    </message>
    <message>
        <source>Digit 2</source>
        <translation>Dígito 2</translation>
    </message>
    <message>
        <source>Digit 3</source>
        <translation>Dígito 3</translation>
    </message>
    <message>
        <source>Digit 4</source>
        <translation>Dígito 4</translation>
    </message>
    <message>
        <source>Digit 5</source>
        <translation>Dígito 5</translation>
    </message>
    <message>
        <source>Digit 6</source>
        <translation>Dígito 6</translation>
    </message>
    <message>
        <source>Digit 7</source>
        <translation>Dígito 7</translation>
    </message>
    <message>
        <source>Digit 8</source>
        <translation>Dígito 8</translation>
    </message>
    <message>
        <source>Digit 9</source>
        <translation>Dígito 9</translation>
    </message>
    <message>
        <source>Hexadecimal digit A (10)</source>
        <translation>Dígito hexadecimal A (10)</translation>
    </message>
    <message>
        <source>Hexadecimal digit B (11)</source>
        <translation>Dígito hexadecimal B (11)</translation>
    </message>
    <message>
        <source>Hexadecimal digit C (12)</source>
        <translation>Dígito hexadecimal C (12)</translation>
    </message>
    <message>
        <source>Hexadecimal digit D (13)</source>
        <translation>Dígito hexadecimal D (13)</translation>
    </message>
    <message>
        <source>Hexadecimal digit E (14)</source>
        <translation>Dígito hexadecimal E (14)</translation>
    </message>
    <message>
        <source>E (in an integer base)</source>
        <translation>E (en una base entera)</translation>
    </message>
    <message>
        <source>Hexadecimal digit F (15)</source>
        <translation>Dígito hexadecimal F (15)</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>Separador decimal</translation>
    </message>
    <message>
        <source>. or ,</source>
        <translation>. o ,</translation>
    </message>
    <message>
        <source>Decimal point (second key)</source>
        <translation>Separador decimal (segunda tecla)</translation>
    </message>
    <message>
        <source>Enter exponent</source>
        <translation>Introducir exponente</translation>
    </message>
    <message>
        <source>Change sign</source>
        <translation>Cambiar signo</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Enter (RPN)</source>
        <translation>Intro (RPN)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Sumar</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Restar</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplicar</translation>
    </message>
    <message>
        <source>* or X</source>
        <translation>* o X</translation>
    </message>
    <message>
        <source>Divide</source>
        <translation>Dividir</translation>
    </message>
    <message>
        <source>Equals: complete the calculation</source>
        <translation>Igual: completar el cálculo</translation>
    </message>
    <message>
        <source>= or Enter</source>
        <translation>= o Intro</translation>
    </message>
    <message>
        <source>Shift: the keys&apos; second functions</source>
        <translation>Mayús: las segundas funciones de las teclas</translation>
    </message>
    <message>
        <source>Show all digits, dates as numbers (toggle)</source>
        <translation>Mostrar todos los dígitos, fechas como números (alternar)</translation>
    </message>
    <message>
        <source>Clear all: stack, registers and macro</source>
        <translation>Borrar todo: pila, registros y macro</translation>
    </message>
    <message>
        <source>Clear stack</source>
        <translation>Borrar la pila</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Clear X</source>
        <translation>Borrar X</translation>
    </message>
    <message>
        <source>Clear all (second key)</source>
        <translation>Borrar todo (segunda tecla)</translation>
    </message>
    <message>
        <source>Clear stack (second key)</source>
        <translation>Borrar la pila (segunda tecla)</translation>
    </message>
    <message>
        <source>Clear X (second key)</source>
        <translation>Borrar X (segunda tecla)</translation>
    </message>
    <message>
        <source>Clear user, financial and statistical registers</source>
        <translation>Borrar los registros de usuario, financieros y estadísticos</translation>
    </message>
    <message>
        <source>Clear the financial registers</source>
        <translation>Borrar los registros financieros</translation>
    </message>
    <message>
        <source>Clear the statistical sums</source>
        <translation>Borrar las sumas estadísticas</translation>
    </message>
    <message>
        <source>Roll the stack down</source>
        <translation>Rotar la pila hacia abajo</translation>
    </message>
    <message>
        <source>Roll the stack up</source>
        <translation>Rotar la pila hacia arriba</translation>
    </message>
    <message>
        <source>Drop X</source>
        <translation>Eliminar X</translation>
    </message>
    <message>
        <source>Fill the stack with X</source>
        <translation>Llenar la pila con X</translation>
    </message>
    <message>
        <source>Exchange X and Y</source>
        <translation>Intercambiar X e Y</translation>
    </message>
    <message>
        <source>Store X in a register</source>
        <translation>Guardar X en un registro</translation>
    </message>
    <message>
        <source>Last X</source>
        <translation>Último X</translation>
    </message>
    <message>
        <source>Recall a register</source>
        <translation>Recuperar un registro</translation>
    </message>
    <message>
        <source>Exchange X with a register</source>
        <translation>Intercambiar X con un registro</translation>
    </message>
    <message>
        <source>Open parenthesis</source>
        <translation>Abrir paréntesis</translation>
    </message>
    <message>
        <source>Close parenthesis</source>
        <translation>Cerrar paréntesis</translation>
    </message>
    <message>
        <source>Percent of total: X as a percentage of Y</source>
        <translation>Porcentaje del total: X como porcentaje de Y</translation>
    </message>
    <message>
        <source>Percent change from Y to X</source>
        <translation>Variación porcentual de Y a X</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentaje</translation>
    </message>
    <message>
        <source>Round X to the digits shown</source>
        <translation>Redondear X a los dígitos mostrados</translation>
    </message>
    <message>
        <source>Integer part</source>
        <translation>Parte entera</translation>
    </message>
    <message>
        <source>Absolute value</source>
        <translation>Valor absoluto</translation>
    </message>
    <message>
        <source>Square root</source>
        <translation>Raíz cuadrada</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Cuadrado</translation>
    </message>
    <message>
        <source>Cube root</source>
        <translation>Raíz cúbica</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>Cubo</translation>
    </message>
    <message>
        <source>Power: Y raised to X</source>
        <translation>Potencia: Y elevado a X</translation>
    </message>
    <message>
        <source>Reciprocal</source>
        <translation>Inverso</translation>
    </message>
    <message>
        <source>Fractional part</source>
        <translation>Parte fraccionaria</translation>
    </message>
    <message>
        <source>Remainder of Y divided by X</source>
        <translation>Resto de Y dividido entre X</translation>
    </message>
    <message>
        <source>Payments at the beginning or end of periods (toggle)</source>
        <translation>Pagos al inicio o al final de los periodos (alternar)</translation>
    </message>
    <message>
        <source>Number of payments</source>
        <translation>Número de pagos</translation>
    </message>
    <message>
        <source>Nominal annual interest rate, percent</source>
        <translation>Tipo de interés nominal anual, en porcentaje</translation>
    </message>
    <message>
        <source>Present value</source>
        <translation>Valor actual</translation>
    </message>
    <message>
        <source>Payment per period</source>
        <translation>Pago por periodo</translation>
    </message>
    <message>
        <source>Future value</source>
        <translation>Valor futuro</translation>
    </message>
    <message>
        <source>Payments per year</source>
        <translation>Pagos por año</translation>
    </message>
    <message>
        <source>Nominal annual interest rate</source>
        <translation>Tipo de interés nominal anual</translation>
    </message>
    <message>
        <source>Effective annual interest rate</source>
        <translation>Tipo de interés efectivo anual</translation>
    </message>
    <message>
        <source>Years times payments per year, stored in N</source>
        <translation>Años por pagos al año, guardado en N</translation>
    </message>
    <message>
        <source>Divide by payments per year</source>
        <translation>Dividir entre los pagos por año</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Coste</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Precio</translation>
    </message>
    <message>
        <source>Margin, percent of price</source>
        <translation>Margen, porcentaje del precio</translation>
    </message>
    <message>
        <source>Markup, percent of cost</source>
        <translation>Recargo, porcentaje del coste</translation>
    </message>
    <message>
        <source>Amortize a range of payments</source>
        <translation>Amortizar una serie de pagos</translation>
    </message>
    <message>
        <source>Amortize the next range of payments</source>
        <translation>Amortizar la siguiente serie de pagos</translation>
    </message>
    <message>
        <source>Cash flow: append X to the cash flows</source>
        <translation>Flujo de caja: añadir X a los flujos</translation>
    </message>
    <message>
        <source>Times the last cash flow repeats</source>
        <translation>Repeticiones del último flujo</translation>
    </message>
    <message>
        <source>Net present value</source>
        <translation>Valor actual neto</translation>
    </message>
    <message>
        <source>Internal rate of return per year</source>
        <translation>Tasa interna de rentabilidad anual</translation>
    </message>
    <message>
        <source>Sine</source>
        <translation>Seno</translation>
    </message>
    <message>
        <source>Cosine</source>
        <translation>Coseno</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Arc sine</source>
        <translation>Arcoseno</translation>
    </message>
    <message>
        <source>Arc cosine</source>
        <translation>Arcocoseno</translation>
    </message>
    <message>
        <source>Arc tangent</source>
        <translation>Arcotangente</translation>
    </message>
    <message>
        <source>Pi</source>
        <translation>Pi</translation>
    </message>
    <message>
        <source>Hyperbolic prefix for the next function</source>
        <translation>Prefijo hiperbólico para la siguiente función</translation>
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
        <translation>Potencia de diez</translation>
    </message>
    <message>
        <source>Angles in degrees</source>
        <translation>Ángulos en grados</translation>
    </message>
    <message>
        <source>Angles in radians</source>
        <translation>Ángulos en radianes</translation>
    </message>
    <message>
        <source>Angles in grads</source>
        <translation>Ángulos en gradianes</translation>
    </message>
    <message>
        <source>Radians to degrees</source>
        <translation>Radianes a grados</translation>
    </message>
    <message>
        <source>Degrees to radians</source>
        <translation>Grados a radianes</translation>
    </message>
    <message>
        <source>Polar to rectangular</source>
        <translation>Polar a rectangular</translation>
    </message>
    <message>
        <source>Rectangular to polar</source>
        <translation>Rectangular a polar</translation>
    </message>
    <message>
        <source>Hours to hours.minutes-seconds (h.mmss)</source>
        <translation>Horas a horas.minutos-segundos (h.mmss)</translation>
    </message>
    <message>
        <source>Hours.minutes-seconds (h.mmss) to hours</source>
        <translation>Horas.minutos-segundos (h.mmss) a horas</translation>
    </message>
    <message>
        <source>Add the point (X, Y) to the sums</source>
        <translation>Añadir el punto (X, Y) a las sumas</translation>
    </message>
    <message>
        <source>Remove the point (X, Y) from the sums</source>
        <translation>Quitar el punto (X, Y) de las sumas</translation>
    </message>
    <message>
        <source>Sum of x</source>
        <translation>Suma de x</translation>
    </message>
    <message>
        <source>Sum of x squared</source>
        <translation>Suma de x al cuadrado</translation>
    </message>
    <message>
        <source>Sum of y</source>
        <translation>Suma de y</translation>
    </message>
    <message>
        <source>Sum of y squared</source>
        <translation>Suma de y al cuadrado</translation>
    </message>
    <message>
        <source>Sum of the products xy</source>
        <translation>Suma de los productos xy</translation>
    </message>
    <message>
        <source>Number of points</source>
        <translation>Número de puntos</translation>
    </message>
    <message>
        <source>Mean of x</source>
        <translation>Media de x</translation>
    </message>
    <message>
        <source>Mean of x weighted by y</source>
        <translation>Media de x ponderada por y</translation>
    </message>
    <message>
        <source>Mean of y</source>
        <translation>Media de y</translation>
    </message>
    <message>
        <source>Estimated x for the y in X; r in Y</source>
        <translation>x estimada para la y de X; r en Y</translation>
    </message>
    <message>
        <source>Estimated y for the x in X; slope in Y</source>
        <translation>y estimada para la x de X; pendiente en Y</translation>
    </message>
    <message>
        <source>Random number</source>
        <translation>Número aleatorio</translation>
    </message>
    <message>
        <source>Factorial</source>
        <translation>Factorial</translation>
    </message>
    <message>
        <source>Logarithm of the gamma function</source>
        <translation>Logaritmo de la función gamma</translation>
    </message>
    <message>
        <source>Sample standard deviation</source>
        <translation>Desviación típica muestral</translation>
    </message>
    <message>
        <source>Population standard deviation</source>
        <translation>Desviación típica poblacional</translation>
    </message>
    <message>
        <source>Combinations of X items from Y</source>
        <translation>Combinaciones de X elementos de Y</translation>
    </message>
    <message>
        <source>Permutations of X items from Y</source>
        <translation>Permutaciones de X elementos de Y</translation>
    </message>
    <message>
        <source>Binary entry and display</source>
        <translation>Entrada y visualización binarias</translation>
    </message>
    <message>
        <source>Octal entry and display</source>
        <translation>Entrada y visualización octales</translation>
    </message>
    <message>
        <source>Decimal integer entry and display</source>
        <translation>Entrada y visualización de enteros decimales</translation>
    </message>
    <message>
        <source>Hexadecimal entry and display</source>
        <translation>Entrada y visualización hexadecimales</translation>
    </message>
    <message>
        <source>Bitwise AND</source>
        <translation>Y bit a bit</translation>
    </message>
    <message>
        <source>Bitwise OR</source>
        <translation>O bit a bit</translation>
    </message>
    <message>
        <source>Bitwise exclusive OR</source>
        <translation>O exclusivo bit a bit</translation>
    </message>
    <message>
        <source>Bitwise NOT</source>
        <translation>NO bit a bit</translation>
    </message>
    <message>
        <source>Shift Y left by X bits</source>
        <translation>Desplazar Y X bits a la izquierda</translation>
    </message>
    <message>
        <source>Shift Y right by X bits (logical)</source>
        <translation>Desplazar Y X bits a la derecha (lógico)</translation>
    </message>
    <message>
        <source>Arithmetic shift right, keeping the sign</source>
        <translation>Desplazamiento aritmético a la derecha, conservando el signo</translation>
    </message>
    <message>
        <source>Rotate Y right by X bits</source>
        <translation>Rotar Y X bits a la derecha</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pulgadas</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Pies</translation>
    </message>
    <message>
        <source>Miles</source>
        <translation>Millas</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Metros</translation>
    </message>
    <message>
        <source>Square inches</source>
        <translation>Pulgadas cuadradas</translation>
    </message>
    <message>
        <source>Square feet</source>
        <translation>Pies cuadrados</translation>
    </message>
    <message>
        <source>Square miles</source>
        <translation>Millas cuadradas</translation>
    </message>
    <message>
        <source>Square meters</source>
        <translation>Metros cuadrados</translation>
    </message>
    <message>
        <source>Pounds</source>
        <translation>Libras</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>Onzas</translation>
    </message>
    <message>
        <source>Kilograms</source>
        <translation>Kilogramos</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>Gramos</translation>
    </message>
    <message>
        <source>Inches per second</source>
        <translation>Pulgadas por segundo</translation>
    </message>
    <message>
        <source>Feet per second</source>
        <translation>Pies por segundo</translation>
    </message>
    <message>
        <source>Meters per second</source>
        <translation>Metros por segundo</translation>
    </message>
    <message>
        <source>Miles per hour</source>
        <translation>Millas por hora</translation>
    </message>
    <message>
        <source>Kilometers per hour</source>
        <translation>Kilómetros por hora</translation>
    </message>
    <message>
        <source>Centimeters per second</source>
        <translation>Centímetros por segundo</translation>
    </message>
    <message>
        <source>US gallons</source>
        <translation>Galones EE. UU.</translation>
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
        <translation>Onzas líquidas EE. UU.</translation>
    </message>
    <message>
        <source>Degrees Celsius</source>
        <translation>Grados Celsius</translation>
    </message>
    <message>
        <source>Degrees Fahrenheit</source>
        <translation>Grados Fahrenheit</translation>
    </message>
    <message>
        <source>X-th root of Y</source>
        <translation>Raíz X-ésima de Y</translation>
    </message>
    <message>
        <source>8-bit unsigned integer</source>
        <translation>Entero de 8 bits sin signo</translation>
    </message>
    <message>
        <source>8-bit signed integer</source>
        <translation>Entero de 8 bits con signo</translation>
    </message>
    <message>
        <source>16-bit unsigned integer</source>
        <translation>Entero de 16 bits sin signo</translation>
    </message>
    <message>
        <source>16-bit signed integer</source>
        <translation>Entero de 16 bits con signo</translation>
    </message>
    <message>
        <source>32-bit unsigned integer</source>
        <translation>Entero de 32 bits sin signo</translation>
    </message>
    <message>
        <source>32-bit signed integer</source>
        <translation>Entero de 32 bits con signo</translation>
    </message>
    <message>
        <source>Standard number format</source>
        <translation>Formato numérico estándar</translation>
    </message>
    <message>
        <source>Scientific format: digits follow</source>
        <translation>Formato científico: siguen los dígitos</translation>
    </message>
    <message>
        <source>Engineering format: digits follow</source>
        <translation>Formato de ingeniería: siguen los dígitos</translation>
    </message>
    <message>
        <source>Largest whole number not above X</source>
        <translation>Mayor entero no superior a X</translation>
    </message>
    <message>
        <source>Smallest whole number not below X</source>
        <translation>Menor entero no inferior a X</translation>
    </message>
    <message>
        <source>Change sign of an integer</source>
        <translation>Cambiar el signo de un entero</translation>
    </message>
    <message>
        <source>X as an integer of the default format</source>
        <translation>X como entero del formato predeterminado</translation>
    </message>
    <message>
        <source>Integer add</source>
        <translation>Suma entera</translation>
    </message>
    <message>
        <source>Integer subtract</source>
        <translation>Resta entera</translation>
    </message>
    <message>
        <source>Integer multiply</source>
        <translation>Multiplicación entera</translation>
    </message>
    <message>
        <source>Integer divide</source>
        <translation>División entera</translation>
    </message>
    <message>
        <source>Fixed format: digits follow</source>
        <translation>Formato fijo: siguen los dígitos</translation>
    </message>
    <message>
        <source>Clear the date registers and duration settings</source>
        <translation>Borrar los registros de fecha y los ajustes de duración</translation>
    </message>
    <message>
        <source>The current date and time</source>
        <translation>La fecha y hora actuales</translation>
    </message>
    <message>
        <source>Date: X typed as Y.MMDD becomes a date</source>
        <translation>Fecha: X escrito como A.MMDD pasa a ser una fecha</translation>
    </message>
    <message>
        <source>Time: X typed as H.MMSS becomes a clock time</source>
        <translation>Hora: X escrito como H.MMSS pasa a ser una hora</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Años</translation>
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
        <translation>Días</translation>
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
        <translation>Fotogramas</translation>
    </message>
    <message>
        <source>Hours.minutes-seconds (h.mmss) to frames</source>
        <translation>Horas.minutos-segundos (h.mmss) a fotogramas</translation>
    </message>
    <message>
        <source>Days per year</source>
        <translation>Días por año</translation>
    </message>
    <message>
        <source>Days per month</source>
        <translation>Días por mes</translation>
    </message>
    <message>
        <source>Days per week</source>
        <translation>Días por semana</translation>
    </message>
    <message>
        <source>Hours per day</source>
        <translation>Horas por día</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Fotogramas por segundo</translation>
    </message>
    <message>
        <source>Date part of a date and time</source>
        <translation>Parte de fecha de una fecha y hora</translation>
    </message>
    <message>
        <source>Time part of a date and time</source>
        <translation>Parte de hora de una fecha y hora</translation>
    </message>
    <message>
        <source>Fraction of a duration in the next smaller unit</source>
        <translation>Fracción de una duración en la unidad menor siguiente</translation>
    </message>
    <message>
        <source>Enter (second key)</source>
        <translation>Intro (segunda tecla)</translation>
    </message>
    <message>
        <source>Rotate the three lowest levels</source>
        <translation>Rotar los tres niveles inferiores</translation>
    </message>
    <message>
        <source>Over: a copy of Y onto the stack</source>
        <translation>Over: una copia de Y a la pila</translation>
    </message>
    <message>
        <source>Simple input: in the order entered</source>
        <translation>Entrada simple: en el orden introducido</translation>
    </message>
    <message>
        <source>Precedence input: × and ÷ before + and −</source>
        <translation>Entrada con precedencia: × y ÷ antes que + y −</translation>
    </message>
    <message>
        <source>RPN input: operands first</source>
        <translation>Entrada RPN: primero los operandos</translation>
    </message>
    <message>
        <source>Record a macro</source>
        <translation>Grabar una macro</translation>
    </message>
    <message>
        <source>Play the macro</source>
        <translation>Reproducir la macro</translation>
    </message>
    <message>
        <source>Pause the macro for input</source>
        <translation>Pausar la macro para una entrada</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Detener la grabación</translation>
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
        <translation>Yardas</translation>
    </message>
    <message>
        <source>Kilometers</source>
        <translation>Kilómetros</translation>
    </message>
    <message>
        <source>Nautical miles</source>
        <translation>Millas náuticas</translation>
    </message>
    <message>
        <source>Square millimeters</source>
        <translation>Milímetros cuadrados</translation>
    </message>
    <message>
        <source>Square centimeters</source>
        <translation>Centímetros cuadrados</translation>
    </message>
    <message>
        <source>Square kilometers</source>
        <translation>Kilómetros cuadrados</translation>
    </message>
    <message>
        <source>Square yards</source>
        <translation>Yardas cuadradas</translation>
    </message>
    <message>
        <source>Acres</source>
        <translation>Acres</translation>
    </message>
    <message>
        <source>Short tons (2,000 pounds)</source>
        <translation>Toneladas cortas (2000 libras)</translation>
    </message>
    <message>
        <source>Milligrams</source>
        <translation>Miligramos</translation>
    </message>
    <message>
        <source>Knots</source>
        <translation>Nudos</translation>
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
        <translation>Yardas cúbicas</translation>
    </message>
    <message>
        <source>Cubic feet</source>
        <translation>Pies cúbicos</translation>
    </message>
    <message>
        <source>Cubic inches</source>
        <translation>Pulgadas cúbicas</translation>
    </message>
    <message>
        <source>US quarts</source>
        <translation>Cuartos EE. UU.</translation>
    </message>
    <message>
        <source>US pints</source>
        <translation>Pintas EE. UU.</translation>
    </message>
    <message>
        <source>US cups</source>
        <translation>Tazas EE. UU.</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>Cucharadas</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>Cucharaditas</translation>
    </message>
    <message>
        <source>Imperial gallons</source>
        <translation>Galones imperiales</translation>
    </message>
    <message>
        <source>Imperial fluid ounces</source>
        <translation>Onzas líquidas imperiales</translation>
    </message>
    <message>
        <source>Amortize a range of payments (second key)</source>
        <translation>Amortizar una serie de pagos (segunda tecla)</translation>
    </message>
    <message>
        <source>Recall one of 100 registers</source>
        <translation>Recuperar uno de 100 registros</translation>
    </message>
    <message>
        <source>Exchange X with one of 100 registers</source>
        <translation>Intercambiar X con uno de 100 registros</translation>
    </message>
    <message>
        <source>Store X in one of 100 registers</source>
        <translation>Guardar X en uno de 100 registros</translation>
    </message>
    <message>
        <source>First shift</source>
        <translation>Primera Mayús</translation>
    </message>
    <message>
        <source>Second shift</source>
        <translation>Segunda Mayús</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>No Function</source>
        <translation>Sin función</translation>
    </message>
    <message>
        <source>The Keyboard dialog can be used to assign a function to this button.</source>
        <translation>El diálogo Teclado permite asignar una función a esta tecla.</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Borrar todo</translation>
    </message>
    <message>
        <source>This operation will clear the operating stack and all user, financial, statistical, and date registers, and the keyboard macro.</source>
        <translation>Esta operación borrará la pila de operaciones, todos los registros de usuario, financieros, estadísticos y de fecha, y la macro de teclado.</translation>
    </message>
    <message>
        <source>Nothing to Undo</source>
        <translation>Nada que deshacer</translation>
    </message>
    <message>
        <source>There are no operations to be undone.</source>
        <translation>No hay operaciones que deshacer.</translation>
    </message>
    <message>
        <source>Nothing to Redo</source>
        <translation>Nada que rehacer</translation>
    </message>
    <message>
        <source>There are no undo actions to be redone.</source>
        <translation>No hay acciones deshechas que rehacer.</translation>
    </message>
    <message>
        <source>No Macro</source>
        <translation>Sin macro</translation>
    </message>
    <message>
        <source>A macro must be recorded before it can be played back.</source>
        <translation>Hay que grabar una macro antes de poder reproducirla.</translation>
    </message>
    <message>
        <source>Macro Length Exceeded</source>
        <translation>Macro demasiado larga</translation>
    </message>
    <message>
        <source>The macro length has been exceeded and the last key could not be recorded.</source>
        <translation>Se ha superado la longitud de la macro y no se pudo grabar la última tecla.</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>No es un número</translation>
    </message>
    <message>
        <source>Out of range</source>
        <translation>Fuera de rango</translation>
    </message>
    <message>
        <source>Must be above 0</source>
        <translation>Debe ser mayor que 0</translation>
    </message>
    <message>
        <source>A whole number from 1 to 32767</source>
        <translation>Un número entero de 1 a 32767</translation>
    </message>
    <message>
        <source>A whole number from 1 up</source>
        <translation>Un número entero desde 1</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>cannot look at %1: %2</source>
        <translation>no se puede examinar %1: %2</translation>
    </message>
    <message>
        <source>cannot create %1: its folder does not exist</source>
        <translation>no se puede crear %1: su carpeta no existe</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>no se puede crear %1: %2</translation>
    </message>
    <message>
        <source>cannot follow the link %1: %2</source>
        <translation>no se puede seguir el enlace %1: %2</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 no es un archivo normal</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>no se puede abrir %1: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 is not a Brinto database</source>
        <translation>%1 no es una base de datos de Brinto</translation>
    </message>
    <message>
        <source>%1 is locked by another program; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 está bloqueado por otro programa; la calculadora funciona en memoria y no se guardará nada</translation>
    </message>
    <message>
        <source>%1 is not a Brinto database; it was left as it is; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 no es una base de datos de Brinto; se ha dejado como estaba; la calculadora funciona en memoria y no se guardará nada</translation>
    </message>
    <message>
        <source>%1; the calculator runs in memory and nothing will be saved</source>
        <translation>%1; la calculadora funciona en memoria y no se guardará nada</translation>
    </message>
    <message>
        <source>%1 is damaged (%2) and cannot be moved aside; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 está dañado (%2) y no se puede apartar; la calculadora funciona en memoria y no se guardará nada</translation>
    </message>
    <message>
        <source>%1 was damaged (%2); kept it as %3; starting on defaults</source>
        <translation>%1 estaba dañado (%2); se conserva como %3; se empieza con los valores predeterminados</translation>
    </message>
    <message>
        <source>%1 was damaged (%2); kept it as %3; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 estaba dañado (%2); se conserva como %3; la calculadora funciona en memoria y no se guardará nada</translation>
    </message>
    <message>
        <source>cannot save the calculator to %1 (%2); the file keeps its last save</source>
        <translation>no se puede guardar la calculadora en %1 (%2); el archivo conserva lo último guardado</translation>
    </message>
    <message>
        <source>cannot create the folder %1: %2; the calculator runs in memory and nothing will be saved</source>
        <translation>no se puede crear la carpeta %1: %2; la calculadora funciona en memoria y no se guardará nada</translation>
    </message>
    <message>
        <source>legacy settings not imported: %1</source>
        <translation>configuración antigua no importada: %1</translation>
    </message>
    <message>
        <source>cannot load the calculator from %1 (%2); the calculator runs in memory and nothing will be saved</source>
        <translation>no se puede cargar la calculadora desde %1 (%2); la calculadora funciona en memoria y no se guardará nada</translation>
    </message>
    <message>
        <source>%1 is read-only; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 es de solo lectura; la calculadora funciona en memoria y no se guardará nada</translation>
    </message>
    <message>
        <source>%1 is locked by another program (%2)</source>
        <translation>%1 está bloqueado por otro programa (%2)</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Default Color</source>
        <translation>Color predeterminado</translation>
    </message>
    <message>
        <source>Default Grayscale</source>
        <translation>Grises predeterminado</translation>
    </message>
    <message>
        <source>Default B&amp;W</source>
        <translation>Blanco y negro predeterminado</translation>
    </message>
    <message>
        <source>Original Color</source>
        <translation>Color original</translation>
    </message>
    <message>
        <source>Original Grayscale</source>
        <translation>Grises original</translation>
    </message>
    <message>
        <source>Original B&amp;W</source>
        <translation>Blanco y negro original</translation>
    </message>
    <message>
        <source>Light Background</source>
        <translation>Fondo claro</translation>
    </message>
    <message>
        <source>Dark Background</source>
        <translation>Fondo oscuro</translation>
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
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>Nivel %1</translation>
    </message>
    <message>
        <source>Choose an input method to determine how Brinto performs calculations:

- Simple specifies an infix order where the operations are performed in the order they are entered, for example, entering 2 + 3 * 5 = yields the result of 25

- Precedence also specifies an infix order where binary operations are performed before multiplication and division which are performed before addition and subtraction reducing the need for using parentheses, for example, 2 + 3 * 5 = yields the result of 17

- RPN (Reverse Polish Notation) specifies a postfix order where the operands are entered before the operation, for example, 2 Enter 3 + 5 * yields 25 and 2 Enter 3 Enter 5 * + yields 17

- The input method can be specified  at any time in the Preferences dialog

- See the Comparison of Input Methods section of the User Guide for more details</source>
        <translation>Elija un método de entrada que determine cómo calcula Brinto:

- Simple es un orden infijo en el que las operaciones se realizan en el orden en que se introducen; por ejemplo, 2 + 3 * 5 = da 25

- Precedencia es también un orden infijo en el que las operaciones binarias se realizan antes que la multiplicación y la división, y estas antes que la suma y la resta, lo que reduce la necesidad de paréntesis; por ejemplo, 2 + 3 * 5 = da 17

- RPN (notación polaca inversa) es un orden postfijo en el que los operandos se introducen antes de la operación; por ejemplo, 2 Intro 3 + 5 * da 25 y 2 Intro 3 Intro 5 * + da 17

- El método de entrada puede cambiarse en cualquier momento en Preferencias

- Vea la sección «Comparison of Input Methods» de la guía del usuario (en inglés) para más detalles</translation>
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
        <translation>Simple</translation>
    </message>
    <message>
        <source>Precedence</source>
        <translation>Precedencia</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Find Key</source>
        <translation>Buscar tecla</translation>
    </message>
    <message>
        <source>&amp;Key name:</source>
        <translation>Nombre de la &amp;tecla:</translation>
    </message>
    <message>
        <source>sqrt, x^2, pv, Square root...</source>
        <translation>sqrt, x^2, pv, Raíz cuadrada...</translation>
    </message>
    <message>
        <source>&amp;Matching keys:</source>
        <translation>Teclas &amp;coincidentes:</translation>
    </message>
    <message>
        <source>&amp;Press</source>
        <translation>&amp;Pulsar</translation>
    </message>
    <message>
        <source>Type the name of a key.</source>
        <translation>Escriba el nombre de una tecla.</translation>
    </message>
    <message>
        <source>No key is called &quot;%1&quot;.</source>
        <translation>Ninguna tecla se llama «%1».</translation>
    </message>
    <message>
        <source>No function</source>
        <translation>Sin función</translation>
    </message>
    <message>
        <source> (key: %1)</source>
        <translation> (tecla: %1)</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
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
        <translation>&amp;Avanzado</translation>
    </message>
    <message>
        <source>&amp;Stack...</source>
        <translation>&amp;Pila...</translation>
    </message>
    <message>
        <source>&amp;User Registers...</source>
        <translation>&amp;Registros de usuario...</translation>
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
        <translation>A&amp;mortización...</translation>
    </message>
    <message>
        <source>Cash &amp;Flow...</source>
        <translation>&amp;Flujo de caja...</translation>
    </message>
    <message>
        <source>Stat&amp;istical...</source>
        <translation>Es&amp;tadística...</translation>
    </message>
    <message>
        <source>Enter &amp;Date...</source>
        <translation>Introducir f&amp;echa...</translation>
    </message>
    <message>
        <source>Enter Ti&amp;me...</source>
        <translation>Introducir &amp;hora...</translation>
    </message>
    <message>
        <source>Du&amp;rations...</source>
        <translation>D&amp;uraciones...</translation>
    </message>
    <message>
        <source>&amp;History Tape</source>
        <translation>C&amp;inta de cálculo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
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
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>&amp;Find Key...</source>
        <translation>&amp;Buscar tecla...</translation>
    </message>
    <message>
        <source>S&amp;hift</source>
        <translation>&amp;Mayús</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Preferencias...</translation>
    </message>
    <message>
        <source>&amp;Keyboard...</source>
        <translation>&amp;Teclado...</translation>
    </message>
    <message>
        <source>&amp;About Brinto...</source>
        <translation>&amp;Acerca de Brinto...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>No guardado</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>No guardado: %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Financial</source>
        <translation>Financiero</translation>
    </message>
    <message>
        <source>Scientific</source>
        <translation>Científico</translation>
    </message>
    <message>
        <source>Statistical</source>
        <translation>Estadística</translation>
    </message>
    <message>
        <source>Programmer</source>
        <translation>Programador</translation>
    </message>
    <message>
        <source>Conversion 1</source>
        <translation>Conversión 1</translation>
    </message>
    <message>
        <source>Conversion 2</source>
        <translation>Conversión 2</translation>
    </message>
    <message>
        <source>Date &amp;&amp; Time</source>
        <translation>Fecha &amp;&amp; hora</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Gen</source>
        <translation>Gen</translation>
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
        <translation>Fecha</translation>
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
        <translation>No se pudo guardar la calculadora.</translation>
    </message>
    <message>
        <source>Quit Without Saving</source>
        <translation>Salir sin guardar</translation>
    </message>
    <message>
        <source>History Tape</source>
        <translation>Cinta de cálculo</translation>
    </message>
    <message>
        <source>Tape lines</source>
        <translation>Líneas de la cinta</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Double click or Return recalls a result into X; Ctrl+C copies it</source>
        <translation>Doble clic o Intro recupera un resultado en X; Ctrl+C lo copia</translation>
    </message>
    <message>
        <source>&amp;Recall</source>
        <translation>&amp;Recuperar</translation>
    </message>
    <message>
        <source>Recall the selected result into X</source>
        <translation>Recuperar el resultado elegido en X</translation>
    </message>
    <message>
        <source>Copy the selected result</source>
        <translation>Copiar el resultado elegido</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Guardar como...</translation>
    </message>
    <message>
        <source>Save the tape as text or CSV</source>
        <translation>Guardar la cinta como texto o CSV</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>Clear the tape</source>
        <translation>Borrar la cinta</translation>
    </message>
    <message>
        <source>The tape could not be saved to %1: %2</source>
        <translation>No se pudo guardar la cinta en %1: %2</translation>
    </message>
    <message>
        <source>Save Tape</source>
        <translation>Guardar cinta</translation>
    </message>
    <message>
        <source>Text (*.txt);;CSV (*.csv)</source>
        <translation>Texto (*.txt);;CSV (*.csv)</translation>
    </message>
    <message>
        <source>Color Chooser</source>
        <translation>Selector de color</translation>
    </message>
    <message>
        <source>Red:</source>
        <translation>Rojo:</translation>
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
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Customize Colors</source>
        <translation>Personalizar colores</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Standard:</source>
        <translation>Estándar:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Número:</translation>
    </message>
    <message>
        <source>Register:</source>
        <translation>Registro:</translation>
    </message>
    <message>
        <source>Clear:</source>
        <translation>Borrado:</translation>
    </message>
    <message>
        <source>%1 text color</source>
        <translation>Color del texto %1</translation>
    </message>
    <message>
        <source>%1 background color</source>
        <translation>Color de fondo %1</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>Constantes</translation>
    </message>
    <message>
        <source>Days per year (dpy):</source>
        <translation>Días por año (dpy):</translation>
    </message>
    <message>
        <source>Days per month (dpm):</source>
        <translation>Días por mes (dpm):</translation>
    </message>
    <message>
        <source>Days per week (dpw):</source>
        <translation>Días por semana (dpw):</translation>
    </message>
    <message>
        <source>Hours per day (hpd):</source>
        <translation>Horas por día (hpd):</translation>
    </message>
    <message>
        <source>Frames per second (fps):</source>
        <translation>Fotogramas por segundo (fps):</translation>
    </message>
    <message>
        <source>Enter Date</source>
        <translation>Introducir fecha</translation>
    </message>
    <message>
        <source>Enter Time</source>
        <translation>Introducir hora</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Tens of minutes</source>
        <translation>Decenas de minutos</translation>
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
        <translation>Duraciones</translation>
    </message>
    <message>
        <source>About Brinto</source>
        <translation>Acerca de Brinto</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>The user guide is in English.</source>
        <translation>La guía del usuario está en inglés.</translation>
    </message>
    <message>
        <source>No Cash Flow Entries</source>
        <translation>Sin flujos de caja</translation>
    </message>
    <message>
        <source>There are no cash flow entries to display.</source>
        <translation>No hay flujos de caja que mostrar.</translation>
    </message>
    <message>
        <source>&lt;h2&gt;User guide missing&lt;/h2&gt;&lt;p&gt;The user guide was not built into this copy of Brinto, so help cannot be shown.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Falta la guía del usuario&lt;/h2&gt;&lt;p&gt;La guía del usuario no se incluyó en esta copia de Brinto, así que no se puede mostrar la ayuda.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Brinto Help</source>
        <translation>Ayuda de Brinto</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>Tecla %1: %2</translation>
    </message>
    <message>
        <source>no function</source>
        <translation>sin función</translation>
    </message>
    <message>
        <source>Customize Keyboard</source>
        <translation>Personalizar teclado</translation>
    </message>
    <message>
        <source>User Keys:</source>
        <translation>Teclas de usuario:</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Entero</translation>
    </message>
    <message>
        <source>Shifted</source>
        <translation>Con Mayús</translation>
    </message>
    <message>
        <source>Available Keys:</source>
        <translation>Teclas disponibles:</translation>
    </message>
    <message>
        <source>Available keyboard</source>
        <translation>Teclado disponible</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Amortization chart</source>
        <translation>Gráfico de amortización</translation>
    </message>
    <message>
        <source>Balance after each payment; interest and principal by year</source>
        <translation>Saldo tras cada pago; interés y capital por año</translation>
    </message>
    <message>
        <source>Balance after each payment; interest and principal of each payment</source>
        <translation>Saldo tras cada pago; interés y capital de cada pago</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Pago</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Interest</source>
        <translation>Interés</translation>
    </message>
    <message>
        <source>Principal</source>
        <translation>Capital</translation>
    </message>
    <message>
        <source>(by year)</source>
        <translation>(por año)</translation>
    </message>
    <message>
        <source>(by payment)</source>
        <translation>(por pago)</translation>
    </message>
    <message>
        <source>Cash-flow diagram</source>
        <translation>Diagrama de flujos de caja</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fijo</translation>
    </message>
    <message>
        <source>Engineering</source>
        <translation>Ingeniería</translation>
    </message>
    <message>
        <source>RPN</source>
        <translation>RPN</translation>
    </message>
    <message>
        <source>8-bit unsigned</source>
        <translation>8 bits sin signo</translation>
    </message>
    <message>
        <source>8-bit signed</source>
        <translation>8 bits con signo</translation>
    </message>
    <message>
        <source>16-bit unsigned</source>
        <translation>16 bits sin signo</translation>
    </message>
    <message>
        <source>16-bit signed</source>
        <translation>16 bits con signo</translation>
    </message>
    <message>
        <source>32-bit unsigned</source>
        <translation>32 bits sin signo</translation>
    </message>
    <message>
        <source>32-bit signed</source>
        <translation>32 bits con signo</translation>
    </message>
    <message>
        <source>Sticky</source>
        <translation>Persistente</translation>
    </message>
    <message>
        <source>Locking</source>
        <translation>Bloqueo</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>No hacer nada</translation>
    </message>
    <message>
        <source>Shift keyboard</source>
        <translation>Cambiar teclado</translation>
    </message>
    <message>
        <source>Repeat last key</source>
        <translation>Repetir la última tecla</translation>
    </message>
    <message>
        <source>Open last form</source>
        <translation>Abrir el último formulario</translation>
    </message>
    <message>
        <source>Play macro</source>
        <translation>Reproducir macro</translation>
    </message>
    <message>
        <source>100 Registers</source>
        <translation>100 registros</translation>
    </message>
    <message>
        <source>Long Date</source>
        <translation>Fecha larga</translation>
    </message>
    <message>
        <source>Backspace Drops</source>
        <translation>Retroceso elimina X</translation>
    </message>
    <message>
        <source>Comma Radix</source>
        <translation>Coma decimal</translation>
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
        <translation>Cuántos dígitos muestra el formato; Todos: cada dígito</translation>
    </message>
    <message>
        <source>Input:</source>
        <translation>Entrada:</translation>
    </message>
    <message>
        <source>Stack:</source>
        <translation>Pila:</translation>
    </message>
    <message>
        <source>How many levels the operating stack has</source>
        <translation>Cuántos niveles tiene la pila de operaciones</translation>
    </message>
    <message>
        <source>Integer:</source>
        <translation>Entero:</translation>
    </message>
    <message>
        <source>Shift:</source>
        <translation>Mayús:</translation>
    </message>
    <message>
        <source>Action:</source>
        <translation>Acción:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pila</translation>
    </message>
    <message>
        <source>User Registers</source>
        <translation>Registros de usuario</translation>
    </message>
    <message>
        <source>TVM</source>
        <translation>Valor temporal (TVM)</translation>
    </message>
    <message>
        <source>Amortization</source>
        <translation>Amortización</translation>
    </message>
    <message>
        <source>Cash Flow</source>
        <translation>Flujo de caja</translation>
    </message>
    <message>
        <source>Basic also</source>
        <translation>También básico</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Pequeña</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Calculadora</translation>
    </message>
    <message>
        <source>Quick Switch</source>
        <translation>Cambio rápido</translation>
    </message>
    <message>
        <source>Colors...</source>
        <translation>Colores...</translation>
    </message>
    <message>
        <source>Tap:</source>
        <translation>Tocar:</translation>
    </message>
    <message>
        <source>Theme:</source>
        <translation>Tema:</translation>
    </message>
    <message>
        <source>Lines:</source>
        <translation>Líneas:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Fuente:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Borde:</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Encima</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>Dentro</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Fijas</translation>
    </message>
    <message>
        <source>Swapped</source>
        <translation>Intercambiado</translation>
    </message>
    <message>
        <source>Zoomed</source>
        <translation>Ampliadas</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Primer plano</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Fuerte</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Muy fuerte</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Mostrar:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>Keys:</source>
        <translation>Teclas:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Color:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Activa:</translation>
    </message>
    <message>
        <source>Shadow:</source>
        <translation>Sombra:</translation>
    </message>
    <message>
        <source>Time Value of Money</source>
        <translation>Valor temporal del dinero</translation>
    </message>
    <message>
        <source>Statistical Registers</source>
        <translation>Registros estadísticos</translation>
    </message>
    <message>
        <source>Cash Flow Entries</source>
        <translation>Flujos de caja</translation>
    </message>
    <message>
        <source>%1: %2 unchanged</source>
        <translation>%1: %2 sin cambios</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Schedule...</source>
        <translation>Cuadro...</translation>
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
        <translation>Cuadro de amortización</translation>
    </message>
    <message>
        <source>Payments</source>
        <translation>Pagos</translation>
    </message>
    <message>
        <source>Int</source>
        <translation>Int</translation>
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
        <translation>Listado hasta el pago %1 de %2: las teclas de amortización no llegan más lejos.</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>Exportar CSV</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>Archivos CSV (*.csv)</translation>
    </message>
    <message>
        <source>The schedule could not be written to %1.</source>
        <translation>No se pudo escribir el cuadro en %1.</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Fecha &amp; hora</translation>
    </message>
    <message>
        <source>Stack levels</source>
        <translation>Niveles de la pila</translation>
    </message>
    <message>
        <source>Try again, or quit without saving what changed since the last save?</source>
        <translation>¿Reintentar, o salir sin guardar lo cambiado desde la última vez?</translation>
    </message>
    <message>
        <source>No payments to chart</source>
        <translation>No hay pagos que representar</translation>
    </message>
    <message>
        <source>Balance stays at %1 over 1 payment</source>
        <translation>El saldo se mantiene en %1 durante 1 pago</translation>
    </message>
    <message>
        <source>Balance stays at %1 over %2 payments</source>
        <translation>El saldo se mantiene en %1 durante %2 pagos</translation>
    </message>
    <message>
        <source>Balance falls from %1 to %2 over 1 payment</source>
        <translation>El saldo baja de %1 a %2 en 1 pago</translation>
    </message>
    <message>
        <source>Balance falls from %1 to %2 over %3 payments</source>
        <translation>El saldo baja de %1 a %2 en %3 pagos</translation>
    </message>
    <message>
        <source>Balance grows from %1 to %2 over 1 payment</source>
        <translation>El saldo sube de %1 a %2 en 1 pago</translation>
    </message>
    <message>
        <source>Balance grows from %1 to %2 over %3 payments</source>
        <translation>El saldo sube de %1 a %2 en %3 pagos</translation>
    </message>
    <message>
        <source>Cash flows at period 0: %1 paid, %2 received</source>
        <translation>Flujos en el periodo 0: %1 pagado, %2 recibido</translation>
    </message>
    <message>
        <source>Cash flows over periods 0 to %1: %2 paid, %3 received</source>
        <translation>Flujos en los periodos 0 a %1: %2 pagado, %3 recibido</translation>
    </message>
</context>
</TS>
