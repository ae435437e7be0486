;; verdaniiso.pat: the hatch patterns that come with Verdani, in millimetres.
;;
;; Each pattern is a line "*NAME, description" followed by its families of
;; parallel lines, one a line:
;;   angle, x-origin, y-origin, delta-x, delta-y [, dash, ...]
;; delta-y is the spacing of the lines, delta-x the shift of the dash
;; sequence from one line to the next; a positive dash draws, a negative
;; one leaves a gap, 0 makes a dot. Patterns built from a motif repeat it
;; on a grid: each stroke of the motif is a family whose dash is the stroke
;; and whose gap runs to the next copy of the motif along the same line.
;;
;; Written for Verdani from the geometry of each material symbol.

*SOLID, Solid fill
45, 0,0, 0,3.175

;; Angle steel: L-shaped sections 5.08 long on a 6.985 grid.
*ANGLE, Angle steel
0, 0,0, 0,6.985, 5.08,-1.905
90, 0,0, 6.985,6.985, 5.08,-1.905

;; The ANSI section lines: 45-degree lines in groups of 3.175 spacing.
*ANSI31, ANSI iron, brick, stone masonry
45, 0,0, 0,3.175

*ANSI32, ANSI steel
45, 0,0, 0,9.525
45, 0,4.490128, 0,9.525

*ANSI33, ANSI bronze, brass, copper
45, 0,0, 0,6.35
45, 0,4.490128, 0,6.35, 3.175,-1.5875

*ANSI34, ANSI plastic, rubber
45, 0,0, 0,12.7
45, 0,2.245064, 0,12.7
45, 0,4.490128, 0,12.7
45, 0,6.735192, 0,12.7

*ANSI35, ANSI fire brick, refractory material
45, 0,0, 0,6.35
45, 0,4.490128, 0,6.35, 7.9375,-1.5875,0,-1.5875

*ANSI36, ANSI marble, slate, glass
45, 0,0, 5.55625,3.175, 7.9375,-1.5875,0,-1.5875

*ANSI37, ANSI lead, zinc, magnesium, sound, heat or electric insulation
45, 0,0, 0,3.175
135, 0,0, 0,3.175

*ANSI38, ANSI aluminum
45, 0,0, 0,3.175
135, 0,0, 6.35,3.175, 7.9375,-4.7625

;; Bricks of 406.4 by 203.2 (16 by 8 inches) in running bond: every course
;; is shifted by half a brick, so the joints of one course are the gaps of
;; the next.
*AR-B816, 8x16 block elevation, stretcher bond
0, 0,0, 0,203.2
90, 0,0, 203.2,203.2, 203.2,-203.2

;; Concrete: four stones (triangles whose sides run along directions of the
;; 25.4 grid) and eight grains in every 25.4 square.
*AR-CONC, Random dot and stone pattern (concrete)
26.565051, 2,3, 34.077676,11.359225, 2.683282,-54.112845
135, 4.4,4.2, 17.960512,17.960512, 1.697056,-34.223968
-116.565051, 3.2,5.4, 22.718451,11.359225, 2.683282,-54.112845
0, 14,8, 0,25.4, 2,-23.4
116.565051, 16,8, 34.077676,11.359225, 4.472136,-52.323991
-90, 14,12, 25.4,25.4, 4,-21.4
45, 6,15, 17.960512,17.960512, 2.12132,-33.799704
-63.434949, 7.5,16.5, 34.077676,11.359225, 3.354102,-53.442025
153.434949, 9,13.5, 22.718451,11.359225, 3.354102,-53.442025
26.565051, 18,19, 34.077676,11.359225, 2.012461,-54.783665
135, 19.8,19.9, 17.960512,17.960512, 1.272792,-34.648232
-116.565051, 18.9,20.8, 22.718451,11.359225, 2.012461,-54.783665
0, 10,2, 0,25.4, 0,-25.4
0, 21,5, 0,25.4, 0,-25.4
0, 3,10, 0,25.4, 0,-25.4
0, 12,13.5, 0,25.4, 0,-25.4
0, 22.5,13, 0,25.4, 0,-25.4
0, 16,23, 0,25.4, 0,-25.4
0, 8,22, 0,25.4, 0,-25.4
0, 1,20.5, 0,25.4, 0,-25.4

;; Bricks three times as long as high (19.05 by 6.35), half-brick bond.
*BRICK, Brick or masonry surface
0, 0,0, 0,6.35
90, 0,0, 6.35,9.525, 6.35,-6.35

;; Plus signs 3.175 across, rows 6.35 apart, every row shifted by half.
*CROSS, Crosses
0, -1.5875,0, 3.175,6.35, 3.175,-3.175
90, 0,-1.5875, 6.35,3.175, 3.175,-9.525

*DASH, Dashed lines
0, 0,0, 3.175,3.175, 3.175,-3.175

*DOTS, Rows of dots
0, 0,0, 0.79375,1.5875, 0,-1.5875

;; Earth: squares of three horizontal strokes alternate with squares of
;; three vertical strokes, on a checkerboard of 6.35.
*EARTH, Earth, ground
0, 0,1.058333, 6.35,6.35, 6.35,-6.35
0, 0,3.175, 6.35,6.35, 6.35,-6.35
0, 0,5.291667, 6.35,6.35, 6.35,-6.35
90, 7.408333,0, 6.35,6.35, 6.35,-6.35
90, 9.525,0, 6.35,6.35, 6.35,-6.35
90, 11.641667,0, 6.35,6.35, 6.35,-6.35

;; Tufts of three blades from one root, rows 12.7 apart, every row shifted
;; by half a tuft spacing.
*GRASS, Grass area
90, 0,0, 12.7,6.35, 4.7625,-20.6375
63.434949, 0,0, 8.519419,11.359225, 3.549758,-10.649274
116.565051, 0,0, 5.679613,11.359225, 3.549758,-10.649274

;; Regular hexagons of side 3.175 with flat tops: each cell draws its top
;; and its two upper sides; the others belong to its neighbours.
*HONEY, Honeycomb
0, -1.5875,2.749631, 4.7625,2.749631, 3.175,-6.35
-60, 1.5875,2.749631, 4.7625,2.749631, 3.175,-6.35
60, -3.175,0, 4.7625,2.749631, 3.175,-6.35

;; Insulation: a solid line and two dashed lines between, 3.175 apart.
*INSUL, Insulation material
0, 0,0, 0,9.525
0, 0,3.175, 0,9.525, 3.175,-3.175
0, 0,6.35, 0,9.525, 3.175,-3.175

;; The line types of ISO 128 for a pen of 1.00 mm as hatch lines 5 apart:
;; dash 12, long dash 24, short dash 6, dot 0.5, space 3 and gap 18.
*ISO02W100, Dashed line
0, 0,0, 0,5, 12,-3
*ISO03W100, Dashed space line
0, 0,0, 0,5, 12,-18
*ISO04W100, Long-dashed dotted line
0, 0,0, 0,5, 24,-3,0.5,-3
*ISO05W100, Long-dashed double-dotted line
0, 0,0, 0,5, 24,-3,0.5,-3,0.5,-3
*ISO06W100, Long-dashed triple-dotted line
0, 0,0, 0,5, 24,-3,0.5,-3,0.5,-3,0.5,-3
*ISO07W100, Dotted line
0, 0,0, 0,5, 0.5,-3
*ISO08W100, Long-dashed short-dashed line
0, 0,0, 0,5, 24,-3,6,-3
*ISO09W100, Long-dashed double-short-dashed line
0, 0,0, 0,5, 24,-3,6,-3,6,-3
*ISO10W100, Dashed dotted line
0, 0,0, 0,5, 12,-3,0.5,-3
*ISO11W100, Double-dashed dotted line
0, 0,0, 0,5, 12,-3,12,-3,0.5,-3
*ISO12W100, Dashed double-dotted line
0, 0,0, 0,5, 12,-3,0.5,-3,0.5,-3
*ISO13W100, Double-dashed double-dotted line
0, 0,0, 0,5, 12,-3,12,-3,0.5,-3,0.5,-3
*ISO14W100, Dashed triple-dotted line
0, 0,0, 0,5, 12,-3,0.5,-3,0.5,-3,0.5,-3
*ISO15W100, Double-dashed triple-dotted line
0, 0,0, 0,5, 12,-3,12,-3,0.5,-3,0.5,-3,0.5,-3

*LINE, Parallel horizontal lines
0, 0,0, 0,3.175

*NET, Horizontal and vertical grid
0, 0,0, 0,3.175
90, 0,0, 0,3.175

;; Concrete section: 45-degree lines with a row of dots halfway between.
*SACNCR, Concrete
45, 0,0, 0,2.38125
45, 0,1.683798, 0,2.38125, 0,-2.38125

;; Squares of side 3.175, as far apart as they are wide.
*SQUARE, Small aligned squares
0, 0,0, 0,6.35, 3.175,-3.175
0, 0,3.175, 0,6.35, 3.175,-3.175
90, 0,0, 0,6.35, 3.175,-3.175
90, 3.175,0, 0,6.35, 3.175,-3.175

*STEEL, Steel material
45, 0,0, 0,6.35
45, 0,2.245064, 0,6.35

;; Zig-zag rows: strokes at 45 and -45 degrees, 3.175 high, rows 6.35 apart.
*ZIGZAG, Zig-zag lines
45, 0,0, 4.490128,4.490128, 4.490128,-4.490128
-45, 3.175,3.175, 4.490128,4.490128, 4.490128,-4.490128
